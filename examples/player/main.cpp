// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

// player FILE [FOLDER]: plays the message in a window. Its parts are in the folder, by default that of the file.

#include "slideshow.h"

#include <smilparser/mmslogger.h>

#include <QtGui/QGuiApplication>
#include <QtQuick/QQuickView>

bool MMSLogger::qdebugEnabled = false;

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    const QString file = application.arguments().value(1);
    Slideshow slideshow;
    slideshow.open(file, application.arguments().value(2, QFileInfo(file).path()));
    QQuickView view;
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.setInitialProperties({std::make_pair(QStringLiteral("slideshow"), QVariant::fromValue(&slideshow))});
    view.setSource(QUrl(QStringLiteral("qrc:/Player.qml")));
    view.show();
    slideshow.play();
    return view.status() == QQuickView::Ready ? application.exec() : (qCritical("A QML module is not installed."), 1);
}
