pragma ComponentBehavior: Bound

import QtQuick
import Orvel.Decks
import Orvel.DesignSystem
import Orvel.Session

/// The selected slide, as large as there is room for, with its texts edited where they stand.
FocusScope {
    id: root

    required property DeckEditorViewModel editor
    readonly property alias canvas: canvas
    /// How wide the slide can be for the height there is.
    readonly property real slideWidth: Math.floor(Math.max(16, Math.min(width, height * 16 / 9)))

    /// The user leaves the slide with Tab or Escape.
    signal exited(forward: bool)
    /// A text is wanted that is edited in the inspector.
    signal inspectorRequested(field: string)

    /// Edits a field from a position on; -1 for its end.
    function edit(field: string, position = -1) {
        Qt.inputMethod.commit() // qmllint disable
        Orvel.undo.endTyping()
        if (!canvas.hasField(field))
            return inspectorRequested(field)
        canvas.field = field
        input.forceActiveFocus(Qt.OtherFocusReason)
        input.place(position < 0 ? input.length : position, false)
    }

    /// Goes into the first text, or the last one.
    function enter(forward: bool) {
        const field = canvas.nextField("", forward)
        if (field !== "")
            edit(field)
    }

    function leave(forward: bool, byTab: bool, x: real) {
        const next = canvas.nextField(canvas.field, forward)
        if (next === "") {
            if (byTab)
                exited(forward)
            return
        }
        edit(next)
        if (!byTab)
            input.place(canvas.positionAtEdge(forward, x), false)
    }

    function press(point: point, selecting: bool) {
        const field = selecting ? canvas.field : canvas.fieldAt(point)
        if (field === "")
            return input.finished()
        if (field !== canvas.field || !input.activeFocus)
            edit(field)
        else
            Qt.inputMethod.commit() // qmllint disable
        Orvel.undo.endTyping()
        input.place(canvas.positionAt(point), selecting)
        input.goalX = NaN
    }

    activeFocusOnTab: false
    Accessible.name: qsTr("Slide")
    Accessible.role: Accessible.Canvas

    SlideEditorCanvas {
        id: canvas
        anchors.centerIn: parent
        caret: input.cursorPosition
        height: Math.round(width * 9 / 16)
        preedit: input.preeditText
        selectionEnd: input.selectionEnd
        selectionStart: input.selectionStart
        shown: root.editor.shown
        text: input.text
        width: root.slideWidth

        // The frame of the text that is edited or pointed at.
        Rectangle {
            readonly property rect place: canvas.field !== "" ? canvas.fieldRect : pointer.fieldRect

            border.color: Qt.alpha(canvas.ink, canvas.field !== "" ? 0.4 : 0.2)
            border.width: Theme.lineWidth
            color: "transparent"
            height: place.height + 2 * Theme.space4
            radius: Theme.cornerMark
            visible: place.width > 0
            width: place.width + 2 * Theme.space4
            x: place.x - Theme.space4
            y: place.y - Theme.space4
        }

        MouseArea {
            id: pointer

            property string field: ""
            readonly property rect fieldRect: field === "" ? Qt.rect(0, 0, 0, 0) : canvas.rectOf(field)

            anchors.fill: parent
            cursorShape: field === "" ? Qt.ArrowCursor
                       : canvas.hasField(field) ? Qt.IBeamCursor : Qt.PointingHandCursor
            hoverEnabled: true
            preventStealing: true
            onDoubleClicked: {
                if (input.activeFocus)
                    input.selectWord()
            }
            onExited: field = ""
            onPositionChanged: mouse => {
                if (pressed && input.activeFocus)
                    input.place(canvas.positionAt(Qt.point(mouse.x, mouse.y)), true)
                else
                    field = canvas.fieldAt(Qt.point(mouse.x, mouse.y))
            }
            onPressed: mouse => root.press(Qt.point(mouse.x, mouse.y), (mouse.modifiers & Qt.ShiftModifier)
                                                                      && input.activeFocus)
        }

        SlideTextInput {
            id: input
            canvas: canvas
            contextMenu: menuArea
            editor: root.editor
            focus: true
            onActiveFocusChanged: {
                if (!activeFocus && !(menuArea.openMenu?.visible ?? false))
                    canvas.field = ""
            }
            onFinished: {
                canvas.field = ""
                root.exited(true)
            }
            onDeparted: (forward, byTab, x) => root.leave(forward, byTab, x)
            onPaged: step => {
                const field = canvas.field
                root.editor.selectAt(root.editor.selectedIndex + step)
                if (canvas.hasField(field))
                    root.edit(field)
                else
                    root.enter(true)
            }
        }

        Item {
            readonly property bool cursorVisible: input.activeFocus && input.selectedText === "" && canvas.field !== ""
            readonly property int cursorPosition: input.cursorPosition

            height: canvas.caretRect.height
            x: canvas.caretRect.x - 1
            y: canvas.caretRect.y

            OVCaret {
                color: canvas.ink
                height: parent.height
            }
        }

        Repeater {
            model: canvas.overflows

            OverflowMark {
                required property rect modelData

                x: Math.min(modelData.x + modelData.width + Theme.space4, canvas.width - width)
                y: modelData.y + modelData.height - height
            }
        }

        OVContextMenuArea {
            id: menuArea
            enabled: canvas.field !== ""
            focusTarget: input
            menu: OVTextMenu {
                storeBacked: true
                target: input
                onRedoRequested: Orvel.undo.redo()
                onUndoRequested: Orvel.undo.undo()
            }
        }
    }

    Rectangle {
        anchors.fill: canvas
        anchors.margins: -1
        border.color: Theme.ovBorder
        border.width: Theme.lineWidth
        color: "transparent"
    }
}
