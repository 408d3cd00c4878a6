import QtQuick
import QtQuick.Templates as T
import Orvel.Code
import Orvel.DesignSystem

/// What a program has printed, to read and to select from. It scrolls by itself, and stays at the end of a text
/// that grows.
FocusScope {
    id: root

    property string text
    property color color: Theme.ovInk
    property int padding: Theme.space12
    property int topPadding: padding
    readonly property real fullHeight: rows.textHeight + area.y + padding
    property alias input: area

    implicitHeight: fullHeight
    implicitWidth: Theme.fieldWidth

    OVFocusRing {
        anchors.margins: 2
        shown: area.activeFocus && (area.focusReason === Qt.TabFocusReason
                                    || area.focusReason === Qt.BacktabFocusReason)
        targetRadius: Theme.cornerMark
    }

    TextRows {
        id: rows
        anchors.fill: parent
        color: area.color
        document: area.textDocument
        origin: Qt.point(area.x, area.y - flickable.contentY)
        selectedTextColor: area.selectedTextColor
        selectionColor: area.selectionColor
        selectionEnd: area.selectionEnd
        selectionStart: area.selectionStart
        onShifted: distance => flickable.contentY += distance
    }

    Flickable {
        id: flickable

        property real knownHeight: 0

        anchors.fill: parent
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        contentHeight: area.y + area.height
        contentWidth: width
        onContentHeightChanged: {
            const wasAtEnd = knownHeight > height && contentY > knownHeight - height - 2
            knownHeight = contentHeight
            if (wasAtEnd)
                contentY = Math.max(0, contentHeight - height)
        }

        T.ScrollBar.vertical: OVScrollBar { }

        // The margins lie outside the text, which would not draw into paddings of its own.
        T.TextArea {
            id: area
            Accessible.name: qsTr("Output")
            activeFocusOnTab: true
            color: root.color
            focus: true
            font.family: Theme.codeFamily
            font.pixelSize: Theme.sizeCaption
            font.preferShaping: false
            height: Math.max(flickable.height, root.fullHeight) - y
            persistentSelection: true
            readOnly: true
            selectByMouse: true
            selectedTextColor: Theme.ovInk
            selectionColor: Theme.selection
            text: root.text
            textFormat: TextEdit.PlainText
            width: flickable.width - 2 * x
            wrapMode: TextEdit.Wrap
            x: root.padding
            y: root.topPadding
            Keys.onDownPressed: flickable.flick(0, -600)
            Keys.onPressed: event => menuArea.handleKey(event)
            Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
            Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
            Keys.onUpPressed: flickable.flick(0, 600)
        }
    }

    OVContextMenuArea {
        id: menuArea
        focusTarget: area
        // A Loader of this Qt version cannot make a bound component.
        // qmllint disable unqualified
        menu: Component {
            OVTextMenu { target: area }
        }
        // qmllint enable unqualified
    }
}
