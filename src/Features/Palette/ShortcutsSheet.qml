pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Palette
import Orvel.Session

/// The keyboard shortcuts, by category and to be searched. Open while `Orvel.ui.isShortcutsPresented`.
Item {
    ShortcutsViewModel {
        id: shortcuts

        query: field.text
    }

    OVSheet {
        id: sheet

        /// The sheet keeps its height while the user searches.
        property real wholeHeight: 0

        maximumWidth: Theme.readingWidth
        subtitle: qsTr("Move around Orvel without leaving the keys.")
        title: qsTr("Keyboard shortcuts")
        visible: Orvel.ui.isShortcutsPresented
        onAboutToHide: Orvel.ui.isShortcutsPresented = false
        onAboutToShow: field.clear()

        pinned: OVSearchField {
            id: field

            focus: true
            width: parent.width
        }

        Item {
            height: Math.max(columns.height, sheet.wholeHeight, nothing.visible ? nothing.height : 0)
            width: parent.width

            Row {
                id: columns

                readonly property int count: width < 2 * Theme.fieldWidth + spacing ? 1 : 2
                /// For each group the column that it goes to, which is the shortest so far.
                readonly property var places: {
                    const lengths = Array(count).fill(0)
                    return shortcuts.groups.map(group => {
                        const column = lengths.indexOf(Math.min(...lengths))
                        lengths[column] += group.rows.length + 1
                        return column
                    })
                }

                spacing: Theme.space32
                width: parent.width
                onHeightChanged: {
                    if (field.length === 0)
                        sheet.wholeHeight = height
                }

                Repeater {
                    model: columns.count

                    Column {
                        id: column

                        required property int index

                        spacing: Theme.space16
                        width: (columns.width - (columns.count - 1) * columns.spacing) / columns.count

                        Repeater {
                            model: shortcuts.groups

                            ShortcutsGroup {
                                required property int index
                                required property var modelData

                                shortcuts: modelData
                                // Null while the columns are made anew.
                                visible: columns.places[index] === column?.index
                                width: column?.width ?? 0
                            }
                        }
                    }
                }
            }

            OVEmptyState {
                id: nothing

                message: qsTr("Try a different search.")
                symbol: "keyboard"
                title: qsTr("No shortcuts match")
                visible: shortcuts.groups.length === 0
                width: parent.width
                y: Theme.space32
            }
        }
    }
}
