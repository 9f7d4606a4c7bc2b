import QtQuick 2.15

Item {
    enum Values {
        NoError,
        Loaded,
        LoadedMedia
    }
    property var source
    property var videoOutput
    property var audioOutput
    property int duration: 3000 // known while it is made
    property int position
    property int status: MediaPlayer.Loaded
    property int mediaStatus: MediaPlayer.LoadedMedia
    property int error: MediaPlayer.NoError
    property bool plays
    property var seek: to => position = to
    property var play: () => plays = true
    property var pause: () => plays = false
}
