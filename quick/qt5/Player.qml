// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtMultimedia 5.15

VideoOutput {
    id: output

    required property url file
    required property bool isFilm
    readonly property bool failed: player.error !== MediaPlayer.NoError
    readonly property real played: player.position
    readonly property real length: player.duration

    signal loaded

    function seek(milliseconds) {
        player.seek(milliseconds);
    }
    function play() {
        player.play();
    }
    function pause() {
        player.pause();
    }
    function stop() {
        player.stop();
    }

    anchors.fill: parent
    source: isFilm ? player : null

    MediaPlayer {
        id: player

        source: output.file
        onStatusChanged: {
            if (status === MediaPlayer.Loaded)
                output.loaded();
        }
    }
}
