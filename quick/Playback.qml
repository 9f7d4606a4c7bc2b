// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT
import QtQuick 2.15

// A sound or film that plays with the slideshow, where QtMultimedia is installed.
Item {
    id: playback

    required property var stage
    required property var medium
    readonly property bool runs: medium.active && stage.slideshow.playing
    readonly property int jumps: stage.jumps
    property var player: null
    readonly property bool isShown: player !== null && !player.failed

    // Plays or pauses as the slideshow does, and from where that is, at least nearly.
    function follow(exactly) {
        if (player === null)
            return;
        const time = 1000 * (stage.slideshow.position - medium.begin);
        const hasEnded = player.media.duration > 0 && time >= player.media.duration;
        if (medium.active && !hasEnded && (exactly || Math.abs(time - player.media.position) > 500))
            player.seek(time);
        if (runs && !hasEnded)
            player.media.play();
        else
            player.media.pause();
    }

    function tellLength() {
        if (player.media.duration > 0)
            stage.lengthKnown(medium.is.part, player.media.duration / 1000);
    }

    onRunsChanged: follow(false)
    onJumpsChanged: follow(true)
    Component.onCompleted: {
        if (medium.is.source.toString() === "" || medium.is.kind !== "audio" && medium.is.kind !== "video")
            return;
        const component = Qt.createComponent("Player.qml");
        if (component.status !== Component.Ready)
            return;
        player = component.createObject(playback, {
                "file": medium.is.source,
                "isFilm": medium.is.kind === "video"
            });
        player.loadedChanged.connect(() => follow(true));
        player.media.durationChanged.connect(tellLength);
        tellLength();
        follow(true);
    }
}
