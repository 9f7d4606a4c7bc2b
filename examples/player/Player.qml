// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT
import QtQuick 2.15

Rectangle {
    id: player

    required property QtObject slideshow
    readonly property var shown: slideshow.shown
    readonly property var screen: shown ? slideshow.screen(Qt.size(width, bar.y)) : null
    readonly property real letter: Math.max(8, Math.min(width, height) / 18)

    width: 360
    height: 480
    color: slideshow.background
    focus: true
    Keys.onLeftPressed: slideshow.previous()
    Keys.onRightPressed: slideshow.next()
    Keys.onSpacePressed: slideshow.playing = !slideshow.playing

    Repeater {
        model: player.shown
        Rectangle {
            id: cue
            required property var modelData
            required property int index
            readonly property real now: player.slideshow.position
            readonly property var area: player.screen.areas[index] || Qt.rect(0, 0, 0, 0)
            x: area.x
            y: area.y
            width: area.width
            height: area.height
            color: modelData.filled ? modelData.paper : "transparent"
            visible: now >= modelData.begin && now < modelData.end && modelData.kind !== "Sound"
            clip: true
            Image {
                id: picture
                readonly property real zoom: player.screen.zoom
                readonly property var zoomed: Qt.size(implicitWidth * zoom, implicitHeight * zoom)
                readonly property var room: Qt.rect(0, 0, cue.width, cue.height)
                readonly property var place: player.slideshow.fit(zoomed, room, cue.modelData.fit)
                x: place.x
                y: place.y
                width: place.width
                height: place.height
                source: cue.modelData.source
                // a larger picture is made that small when it is read
                sourceSize: Qt.size(1280, 1280)
                asynchronous: true
                autoTransform: true
                Accessible.role: Accessible.Graphic
                Accessible.name: cue.modelData.alt || cue.modelData.name
            }
            Flickable {
                width: cue.width
                height: Math.min(cue.height, words.height)
                contentHeight: words.height
                visible: picture.status === Image.Null || picture.status === Image.Error
                Rectangle {
                    anchors.fill: words
                    color: cue.modelData.paper
                }
                Text {
                    id: words
                    readonly property string plain: cue.modelData.text || cue.modelData.kind + ": " + cue.modelData.name
                    text: player.slideshow.breakable(plain)
                    color: cue.modelData.ink
                    font.pixelSize: player.letter
                    width: cue.width
                    padding: player.letter / 3
                    textFormat: Text.PlainText
                    wrapMode: Text.Wrap
                    Accessible.role: Accessible.StaticText
                    Accessible.name: cue.modelData.alt || plain
                }
            }
        }
    }
    Item {
        anchors.fill: parent
        TapHandler {
            onTapped: player.slideshow.next()
        }
    }
    Text {
        id: bar
        readonly property string progress: (player.slideshow.slide + 1) + " / " + player.slideshow.slides
        readonly property var more: player.slideshow.more ? ["+ " + player.slideshow.more] : []
        readonly property var sounds: player.shown.filter(cue => cue.kind === "Sound").map(cue => "Sound: " + cue.name)
        y: player.height - height
        width: player.width
        leftPadding: player.letter / 3
        height: player.slideshow.problem ? player.height : 2 * player.letter
        verticalAlignment: Text.AlignVCenter
        text: player.slideshow.problem || [progress].concat(more, sounds).join("   ")
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        elide: Text.ElideRight
        color: "white"
        font.pixelSize: player.letter
        Accessible.role: Accessible.Button
        Accessible.name: text
        Accessible.onPressAction: player.slideshow.next()
        Rectangle {
            anchors.fill: parent
            z: -1
            color: "#303030"
        }
    }
}
