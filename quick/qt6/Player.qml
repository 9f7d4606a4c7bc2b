// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT
import QtQuick
import QtMultimedia

VideoOutput {
    id: output

    required property url file
    required property bool isFilm
    readonly property bool failed: player.error !== MediaPlayer.NoError
    readonly property real played: player.position
    readonly property real length: player.duration

    signal loaded

    function seek(milliseconds) {
        player.position = milliseconds;
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

    MediaPlayer {
        id: player

        source: output.file
        videoOutput: output.isFilm ? output : null
        audioOutput: AudioOutput {
        }
        onMediaStatusChanged: {
            if (mediaStatus === MediaPlayer.LoadedMedia)
                output.loaded();
        }
    }
}
