import QtQuick
import VeldraUI.Style
Rectangle { color: Theme.colors.windowBackground; StyledText { anchors.centerIn: parent; text: "Manager" } }
