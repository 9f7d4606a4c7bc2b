// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT
import QtQuick 2.15

// A sound or film that plays with the slideshow, where it may be played and QtMultimedia is installed.
Item {
    id: playback

    required property var medium
    required property var slideshow
    required property var stage
    property var player: null
    readonly property bool isShown: player !== null && !player.failed

    // Goes to where the slideshow is, if the player is elsewhere; with seeking, in any case.
    function follow(seeking) {
        const time = 1000 * (slideshow.position - medium.begin);
        if (!medium.active || player.length > 0 && time >= player.length)
            return player.stop();
        if (seeking || Math.abs(time - player.played) > 500)
            player.seek(time);
        if (slideshow.playing)
            player.play();
        else
            player.pause();
    }

    Component.onCompleted: {
        if (medium.source.toString() === "" || medium.kind !== "audio" && medium.kind !== "video")
            return;
        const component = Qt.createComponent("Player.qml");
        if (component.status === Component.Ready)
            player = component.createObject(playback, {
                    "file": medium.source,
                    "isFilm": medium.kind === "video"
                });
    }

    Connections {
        target: playback.player
        function onLoaded() {
            playback.follow(true);
        }
        function onLengthChanged() {
            if (playback.player.length > 0)
                playback.stage.lengthKnown(playback.medium.part, playback.player.length / 1000);
        }
    }

    Connections {
        target: playback.player ? playback.medium : null
        function onActiveChanged() {
            playback.follow(false);
        }
    }

    Connections {
        target: playback.player ? playback.slideshow : null
        function onPlayingChanged() {
            playback.follow(false);
        }
    }

    Connections {
        target: playback.player ? playback.stage : null
        function onSought() {
            playback.follow(true);
        }
    }
}
