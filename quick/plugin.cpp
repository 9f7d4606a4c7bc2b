// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "slideshow.h"

#include <smilparser/mmslogger.h>

#include <QtQml/QQmlExtensionPlugin>

// For programs that are QML only: a host that defines its own has that one used.
bool MMSLogger::qdebugEnabled = false;

class SmilPlugin : public QQmlExtensionPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QQmlExtensionInterface_iid)

public:
    void registerTypes(const char *uri) override { qmlRegisterType<Slideshow>(uri, 1, 0, "Slideshow"); }
};

#include "plugin.moc"
