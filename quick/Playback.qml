// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

import QtQuick 2.15

// A sound or film, where it may be played and QtMultimedia is installed.
Item {
    id: playback

    required property var medium
    required property var slideshow
    required property var stage
    property var player: null
    readonly property bool isShown: player !== null && !player.failed

    Component.onCompleted: {
        if (medium.kind !== "audio" && medium.kind !== "video" || medium.source.toString() === "")
            return;
        const component = Qt.createComponent("Player.qml");
        if (component.status === Component.Ready)
            player = component.createObject(playback, {
                "medium": medium,
                "slideshow": slideshow,
                "stage": stage
            });
    }
}
