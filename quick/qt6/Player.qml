// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT
import QtQuick
import QtMultimedia

VideoOutput {
    id: output

    required property url file
    required property bool isFilm
    readonly property bool loaded: media.mediaStatus === MediaPlayer.LoadedMedia
    readonly property bool failed: media.error !== MediaPlayer.NoError
    readonly property MediaPlayer media: MediaPlayer {
        source: output.file
        videoOutput: output.isFilm ? output : null
        audioOutput: AudioOutput {
        }
    }

    function seek(milliseconds) {
        media.position = milliseconds;
    }

    anchors.fill: parent
}
