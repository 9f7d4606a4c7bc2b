// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Window 2.15
import Smil 1.0

Window {
    id: window

    required property var smil
    required property var parts

    visible: true
    width: 360
    height: 528
    title: slideshow.title

    Slideshow {
        id: slideshow

        anchors.fill: parent
        smil: window.smil
        parts: window.parts
        playing: true
        focus: true
    }
}
