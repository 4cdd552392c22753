import QtQuick
Rectangle { color: "#f0f0f0"; Text { anchors.centerIn: parent; text: "Manager" } }
