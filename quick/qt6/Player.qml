// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

import QtQuick
import QtMultimedia

VideoOutput {
    id: output

    required property var medium
    required property var slideshow
    required property var stage
    readonly property bool failed: player.error !== MediaPlayer.NoError

    // Plays what the slideshow has come to; with sought, its position was set.
    function follow(sought) {
        const played = 1000 * (slideshow.position - medium.begin);
        if (!medium.active || player.duration > 0 && played >= player.duration) {
            player.stop();
            return;
        }
        if (sought || Math.abs(played - player.position) > 500)
            player.position = played;
        if (slideshow.playing)
            player.play();
        else
            player.pause();
    }

    anchors.fill: parent

    MediaPlayer {
        id: player

        source: output.medium.source
        videoOutput: output.medium.kind === "video" ? output : null
        audioOutput: AudioOutput {}
        onDurationChanged: {
            if (duration > 0)
                output.stage.lengthKnown(output.medium.part, duration / 1000);
        }
        onMediaStatusChanged: {
            if (mediaStatus === MediaPlayer.LoadedMedia)
                output.follow(true);
        }
    }

    Connections {
        target: output.medium
        function onChanged() {
            output.follow(false);
        }
    }

    Connections {
        target: output.slideshow
        function onPlayingChanged() {
            output.follow(false);
        }
    }

    Connections {
        target: output.stage
        function onSought() {
            output.follow(true);
        }
    }
}
