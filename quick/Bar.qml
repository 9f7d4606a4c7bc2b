// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT
import QtQuick 2.15

Rectangle {
    id: bar

    required property var stage
    readonly property var slideshow: stage.slideshow
    readonly property string words: {
        const all = [qsTr("%1 / %2").arg(slideshow.slide + 1).arg(slideshow.count)];
        if (stage.more > 0)
            all.push(qsTr("%n more", "", stage.more));
        for (const sound of stage.heard)
            all.push((sound.is.part < 0 ? qsTr("Missing sound: %1") : qsTr("Sound: %1")).arg(sound.is.name));
        return all.join("   ");
    }

    height: 48
    color: "#303030"

    Row {
        id: buttons

        Button {
            label: qsTr("Previous slide")
            shape: [[[0, 0], [0.2, 0], [0.2, 1], [0, 1]], [[1, 0], [1, 1], [0.25, 0.5]]]
            enabled: bar.slideshow.position > 0
            onPressed: bar.slideshow.previous()
        }

        Button {
            label: bar.slideshow.playing ? qsTr("Pause") : qsTr("Play")
            shape: bar.slideshow.playing ? [[[0.1, 0], [0.4, 0], [0.4, 1], [0.1, 1]], [[0.6, 0], [0.9, 0], [0.9, 1], [0.6, 1]]] : [[[0.1, 0], [1, 0.5], [0.1, 1]]]
            enabled: bar.slideshow.count > 0
            onPressed: bar.slideshow.playing = !bar.slideshow.playing
        }

        Button {
            label: qsTr("Next slide")
            shape: [[[0, 0], [0.75, 0.5], [0, 1]], [[0.8, 0], [1, 0], [1, 1], [0.8, 1]]]
            enabled: bar.slideshow.slide < bar.slideshow.count - 1
            onPressed: bar.slideshow.next()
        }
    }

    Text {
        anchors.left: buttons.right
        anchors.right: parent.right
        anchors.margins: 8
        height: parent.height
        verticalAlignment: Text.AlignVCenter
        text: bar.words
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        elide: Text.ElideRight
        color: "white"
        font.pixelSize: 16
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
