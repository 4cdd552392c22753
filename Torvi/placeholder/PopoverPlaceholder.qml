import QtQuick
Rectangle { color: "#202124"; Text { anchors.centerIn: parent; color: "white"; text: "Popover" } }
