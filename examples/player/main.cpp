// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

// player FOLDER, or player FILE [FOLDER]: plays the parts in the folder, by the SMIL among them or by that of the file.

#include <QtCore/QDir>
#include <QtGui/QGuiApplication>
#include <QtQml/QQmlApplicationEngine>

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    const QFileInfo message(application.arguments().value(1));
    const bool isFolder = message.isDir();
    const QDir folder(application.arguments().value(2, isFolder ? message.filePath() : message.path()));
    QFile smil(message.filePath());
    if (!isFolder && !smil.open(QIODevice::ReadOnly)) {
        qCritical("Cannot open %s", qPrintable(message.filePath()));
        return 1;
    }
    QVariantList parts;
    const QFileInfoList files = folder.entryInfoList(QDir::Files | QDir::NoSymLinks);
    for (const QFileInfo &file : files) {
        QVariantMap part;
        part[QStringLiteral("name")] = file.fileName();
        part[QStringLiteral("source")] = QUrl::fromLocalFile(file.absoluteFilePath());
        parts.append(part);
    }
    QQmlApplicationEngine engine;
    engine.setInitialProperties({std::make_pair(QStringLiteral("smil"), isFolder ? QByteArray() : smil.readAll()),
                                 std::make_pair(QStringLiteral("parts"), parts)});
    engine.load(QUrl(QStringLiteral("qrc:/Main.qml")));
    return engine.rootObjects().isEmpty() ? 1 : application.exec();
}
