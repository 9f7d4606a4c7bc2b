// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT
import QtQuick 2.15

// A sound or film that plays with the slideshow, where QtMultimedia is installed.
Item {
    id: playback

    required property var stage
    required property var medium
    readonly property bool runs: medium.active && stage.slideshow.playing
    property var player: null
    readonly property bool isShown: player !== null && !player.failed

    // Plays or pauses as the slideshow does, and from where that is; "sought" says that it has jumped there.
    function follow(sought) {
        const time = 1000 * (stage.slideshow.position - medium.begin);
        const hasEnded = player.media.duration > 0 && time >= player.media.duration;
        if (medium.active && !hasEnded && (sought || Math.abs(time - player.media.position) > 500))
            player.seek(time);
        if (runs && !hasEnded)
            player.media.play();
        else
            player.media.pause();
    }

    function tellLength() {
        if (player.media.duration > 0)
            stage.lengthKnown(medium.part, player.media.duration / 1000);
    }

    Component.onCompleted: {
        if (medium.source.toString() === "" || medium.kind !== "audio" && medium.kind !== "video")
            return;
        const component = Qt.createComponent("Player.qml");
        if (component.status !== Component.Ready)
            return;
        player = component.createObject(playback, {
                "file": medium.source,
                "isFilm": medium.kind === "video"
            });
        player.loadedChanged.connect(() => follow(true));
        player.media.durationChanged.connect(tellLength);
        runsChanged.connect(() => follow(false));
        tellLength();
        follow(true);
    }

    Connections {
        target: playback.player ? playback.stage : null

        function onSought() {
            playback.follow(true);
        }
    }
}
