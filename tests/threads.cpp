// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "modeldump.h"

#include <QtTest/QtTest>

#include <thread>
#include <vector>

class Threads : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void differentMessages();
};

/** A message, or half of one, and what comes of reading and writing it. */
static QString readAndWrite(int number)
{
    const QByteArray dur = QByteArray::number(number) + "s";
    const QByteArray text = "<?xml version='1.0' encoding='" + QByteArray(number % 2 ? "UTF-8" : "GBK")
        + "'?><smil><head title='" + dur + "'/><body>"
        + QByteArray("<PAR dur='" + dur + "'><img/></PAR>").repeated(number) + "</body></smil>";
    SmilParser parser(text.left(number % 3 ? text.size() : text.size() / 2));
    QString error;
    const QString model = ModelDump::of(parser.parse(&error));
    return model + error + ModelDump::of(parser.getContent());
}

void Threads::differentMessages()
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    std::vector<QString> results(8);
    std::vector<std::thread> threads;
    // Nothing has been read on this thread yet: the first time is part of the test.
    for (int i = 0; i < 8; ++i) {
        threads.emplace_back([i, &results] {
            for (int times = 0; times < 40; ++times) {
                results[size_t(i)] += readAndWrite(i + 1);
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    for (int i = 0; i < 8; ++i) {
        QCOMPARE(results[size_t(i)], readAndWrite(i + 1).repeated(40));
    }
}

QTEST_GUILESS_MAIN(Threads)

#include "threads.moc"
