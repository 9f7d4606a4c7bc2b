// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtMultimedia 5.15

VideoOutput {
    id: output

    required property url file
    required property bool isFilm
    readonly property bool loaded: media.status === MediaPlayer.Loaded
    readonly property bool failed: media.error !== MediaPlayer.NoError
    readonly property MediaPlayer media: MediaPlayer {
        source: output.file
    }

    function seek(milliseconds) {
        media.seek(milliseconds);
    }

    source: isFilm ? media : null
    anchors.fill: parent
}
