// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT
import QtQuick 2.15

// What is seen of a medium: the picture or film in its place, or else a text.
Rectangle {
    id: place

    required property var stage
    required property var modelData
    readonly property var medium: modelData
    readonly property real letter: Math.max(8, Math.min(stage.size.width, stage.size.height) / 18)
    readonly property bool isPicture: medium.is.kind === "image" && medium.is.source.toString() !== ""
    readonly property Image picture: medium.is.moves ? moving : still
    readonly property var own: Qt.size(picture.implicitWidth * stage.zoom, picture.implicitHeight * stage.zoom)
    readonly property var fitted: medium.fitted(own, Qt.size(width, height))
    readonly property bool isShown: medium.is.kind === "video" ? film.isShown : isPicture && picture.status !== Image.Error
    readonly property var lines: ({
            "text": [qsTr("Text: %1"), qsTr("Missing text: %1")],
            "image": [qsTr("Picture: %1"), qsTr("Missing picture: %1")],
            "video": [qsTr("Film: %1"), qsTr("Missing film: %1")],
            "file": [qsTr("File: %1"), qsTr("Missing file: %1")]
        })
    readonly property string named: lines[medium.is.kind][medium.is.part < 0 ? 1 : 0].arg(medium.is.name)
    readonly property string words: medium.text || (medium.is.part < 0 && medium.is.kind === "image" && medium.is.alt) || named

    x: medium.area.x
    y: medium.area.y
    width: medium.area.width
    height: medium.area.height
    color: medium.is.filled ? medium.is.paper : "transparent"
    visible: medium.visible
    clip: true

    Item {
        x: place.fitted.x
        y: place.fitted.y
        width: place.fitted.width
        height: place.fitted.height
        Accessible.role: Accessible.Graphic
        Accessible.name: place.medium.is.alt || place.named
        Accessible.ignored: !place.isShown

        Image {
            id: still

            anchors.fill: parent
            source: place.isPicture && !place.medium.is.moves ? place.medium.is.source : ""
            sourceSize: Qt.size(1280, 1280) // a larger one is made that small when it is read
            asynchronous: true
            autoTransform: true
        }

        AnimatedImage {
            id: moving

            anchors.fill: parent
            source: place.isPicture && place.medium.is.moves ? place.medium.is.source : ""
            cache: false
            playing: place.visible
        }
    }

    Playback {
        id: film

        medium: place.medium
        stage: place.stage
        anchors.fill: parent
    }

    Flickable {
        width: place.width
        height: Math.min(place.height, text.height)
        contentHeight: text.height
        flickableDirection: Flickable.HorizontalAndVerticalFlick // so that no drag is a tap
        boundsBehavior: Flickable.StopAtBounds
        visible: !place.isShown

        Rectangle {
            anchors.fill: text
            color: place.medium.is.paper
        }

        Text {
            id: text

            width: place.width
            padding: place.letter / 3
            text: place.words
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            color: place.medium.is.ink
            font.pixelSize: place.letter
            Accessible.role: Accessible.StaticText
            Accessible.name: place.medium.is.alt || place.words

            MouseArea {
                anchors.fill: parent
                onClicked: mouse => place.x + mouse.x < place.stage.size.width / 3 ? place.stage.slideshow.previous() : place.stage.slideshow.next()
            }
        }
    }
}
