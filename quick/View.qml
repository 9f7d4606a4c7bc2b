// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT
import QtQuick 2.15

Item {
    id: view

    required property var stage
    readonly property var slideshow: stage.slideshow

    anchors.fill: parent
    focus: true
    Keys.onLeftPressed: slideshow.previous()
    Keys.onRightPressed: slideshow.next()
    Keys.onSpacePressed: slideshow.playing = !slideshow.playing

    Rectangle {
        id: screen

        readonly property var wanted: Qt.size(width, height)

        width: parent.width
        height: bar.y
        color: view.stage.background
        onWantedChanged: view.stage.size = wanted

        Item {
            anchors.fill: parent

            TapHandler {
                onTapped: point => point.position.x < screen.width / 3 ? view.slideshow.previous() : view.slideshow.next()
            }
        }

        Repeater {
            model: view.stage.seen

            Medium {
                stage: view.stage
            }
        }

        Repeater {
            model: view.stage.heard

            Playback {
                required property var modelData

                medium: modelData
                stage: view.stage
            }
        }
    }

    Bar {
        id: bar

        stage: view.stage
        visible: view.slideshow.controls
        y: view.height - (visible ? height : 0)
        width: view.width
    }
}
