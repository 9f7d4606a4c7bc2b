// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT
import QtQuick 2.15

Item {
    id: button

    required property string label // for screen readers
    required property var shape // what is drawn: polygons of [x, y], each between 0 and 1

    signal pressed

    width: 48
    height: 48
    opacity: enabled ? 1 : 0.4
    onShapeChanged: canvas.requestPaint()
    Accessible.role: Accessible.Button
    Accessible.name: label
    Accessible.onPressAction: pressed()

    Canvas {
        id: canvas

        anchors.centerIn: parent
        width: 16
        height: 16
        onPaint: {
            const context = getContext("2d");
            context.reset();
            context.fillStyle = "white";
            for (const polygon of button.shape) {
                context.beginPath();
                for (const point of polygon)
                    context.lineTo(point[0] * width, point[1] * height);
                context.fill();
            }
        }
    }

    TapHandler {
        onTapped: button.pressed()
    }
}
