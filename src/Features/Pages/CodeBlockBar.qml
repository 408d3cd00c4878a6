import QtQuick
import Orvel.Code
import Orvel.DesignSystem
import Orvel.Pages

/// The head of a code block: its language, its lines, and the buttons to run and to copy it.
Item {
    id: root

    required property PageEditorViewModel editor
    required property var blockID
    required property string language
    required property string lineCountText
    required property CodeRun run
    readonly property bool canRun: CodeLanguageList.canRun(language)

    function stops(): list<Item> {
        return [languageButton, runButton, copyButton]
    }

    implicitHeight: Theme.fieldHeight

    OVMenuButton {
        id: languageButton
        tabStop: false
        anchors.verticalCenter: parent.verticalCenter
        plain: true
        text: CodeLanguageList.label(root.language)
        x: Theme.space4
        Accessible.name: qsTr("Language: %1").arg(text)
        onActiveFocusChanged: menuLoader.active = true
        onPressed: menuLoader.active = true

        menu: menuLoader.item as OVMenu
    }

    // The menu is made when it is first needed.
    // qmllint disable unqualified
    Loader {
        id: menuLoader
        active: false
        sourceComponent: CodeLanguageMenu {
            language: root.language
            onPicked: raw => root.editor.setLanguage(root.blockID, raw)
        }
    }
    // qmllint enable unqualified

    OVText {
        anchors.left: languageButton.right
        anchors.leftMargin: Theme.space8
        anchors.verticalCenter: parent.verticalCenter
        role: OVText.Caption
        text: root.lineCountText
    }

    Row {
        anchors.right: parent.right
        anchors.rightMargin: Theme.space4
        anchors.verticalCenter: parent.verticalCenter

        OVIconButton {
            id: runButton
            tabStop: false
            color: root.run.running ? Theme.ovInk : root.canRun ? Theme.ovSuccess : Theme.ovInkTertiary
            filled: true
            iconSize: Theme.iconRow
            opacity: 1
            symbol: root.run.running ? "stop" : "play"
            text: root.run.running ? qsTr("Stop")
                                   : root.canRun ? qsTr("Run code") : CodeLanguageList.unsupportedReason(root.language)
            onClicked: {
                if (root.run.running)
                    root.run.stop()
                else
                    root.editor.runInlineCode(root.blockID)
            }
        }

        OVIconButton {
            id: copyButton
            tabStop: false
            iconSize: Theme.iconRow
            symbol: "doc.on.doc"
            text: qsTr("Copy code")
            onClicked: root.editor.copyCode(root.blockID)
        }
    }
}
