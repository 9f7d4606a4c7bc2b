// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_FILES_H
#define SMILTOOL_FILES_H

#include <QtCore/QStringList>

class QFile;

enum class Links { Refused, Followed };

/**
 * Opens a plain file to read it; what is none (a folder, a device, a pipe, which may wait for a writer or have no end)
 * is not opened. Returns why that failed, to be written after its name, or else nothing.
 */
QString openPlainFile(const QString &name, Links links, QFile &file);

/** The files directly in a folder; no links, no devices and the like. */
class Folder
{
public:
    /** Looks for its files. @p problem says why if it cannot be read or has more than bounds::files; then it has none.
     */
    Folder(const QString &path, QString &problem);
    /** No folder, without files. */
    Folder() = default;

    const QString &path() const { return m_path; }
    /** Names, sorted. */
    const QStringList &files() const { return m_files; }

    /**
     * Reads a file, all of it or nothing. Returns why it cannot be read: it is something else by now, or larger than
     * bounds::file, or more than bounds::folder with those that have been read before.
     */
    QString read(const QString &name, QByteArray &data);

private:
    QString m_path;
    QStringList m_files;
    qint64 m_left = 0;
};

/** What the file is called directly in the folder, whatever names they are given by; empty if it is not there. */
QString nameIn(const QString &folder, const QString &file);

#endif
