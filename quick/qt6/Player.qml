// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT
import QtQuick
import QtMultimedia

VideoOutput {
    id: output

    required property var medium
    readonly property bool loaded: media.mediaStatus === MediaPlayer.LoadedMedia
    readonly property bool failed: media.error !== MediaPlayer.NoError
    readonly property MediaPlayer media: MediaPlayer {
        source: output.medium.is.source
        videoOutput: output.medium.is.kind === "video" ? output : null
        audioOutput: AudioOutput {
        }
    }

    function seek(milliseconds) {
        media.position = milliseconds;
    }

    anchors.fill: parent
}
