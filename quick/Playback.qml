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
        const length = player.media.duration;
        if (length > 0)
            stage.lengthKnown(medium.is.part, length / 1000);
        const time = 1000 * (stage.slideshow.position - medium.begin);
        const hasEnded = length > 0 && time >= length;
        if (medium.active && !hasEnded && (exactly || Math.abs(time - player.media.position) > 500))
            player.seek(time);
        if (runs && !hasEnded)
            player.media.play();
        else
            player.media.pause();
    }

    onRunsChanged: follow(false)
    onJumpsChanged: follow(true)
    Component.onCompleted: {
        if (medium.is.kind === "image" || medium.is.source.toString() === "")
            return;
        const component = Qt.createComponent("Player.qml");
        if (component.status !== Component.Ready)
            return;
        player = component.createObject(playback, {
                "medium": medium
            });
        player.loadedChanged.connect(() => follow(true));
        player.media.durationChanged.connect(() => follow(false));
        follow(true);
    }
}
