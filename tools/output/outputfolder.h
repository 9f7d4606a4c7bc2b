// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_OUTPUTFOLDER_H
#define SMILTOOL_OUTPUTFOLDER_H

#include <QtCore/QString>

/** A folder that new files are written to. It is looked for once: what becomes of its path later does not matter. */
class OutputFolder
{
public:
    /** Makes the folder where there is none. @p problem says why if it cannot be written to; then nothing is. */
    OutputFolder(const QString &path, QString &problem);
    ~OutputFolder();

    /**
     * Writes a file directly in the folder, as a whole or not at all. One that is there already with the same content
     * is left as it is; so is anything else of this name, but then that is a problem, and so is a name that is no
     * safeName(). Returns why that failed, to be written after the name, or else nothing.
     */
    QString write(const QString &name, const QByteArray &data) const;

private:
    Q_DISABLE_COPY(OutputFolder)
    int m_descriptor;
};

#endif
