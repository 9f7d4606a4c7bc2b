// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtMultimedia 5.15

VideoOutput {
    id: output

    required property var medium
    readonly property bool loaded: media.status === MediaPlayer.Loaded
    readonly property bool failed: media.error !== MediaPlayer.NoError
    readonly property MediaPlayer media: MediaPlayer {
        source: output.medium.is.source
    }

    function seek(milliseconds) {
        media.seek(milliseconds);
    }

    source: medium.is.kind === "video" ? media : null
    anchors.fill: parent
}
