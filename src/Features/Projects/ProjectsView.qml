import QtQuick
import Orvel.DesignSystem
import Orvel.Projects
import Orvel.Session

/// The screen of all projects, and below them those that are kept as templates.
FocusScope {
    id: root

    readonly property int cardWidth: Theme.fieldWidth + Theme.space48

    function openSheet(byKeys: bool) {
        sheet.byKeys = byKeys
        sheet.open()
    }

    ProjectsViewModel {
        id: projects
        active: root.visible
        session: Orvel
        onRevealed: (card, isTemplate) => {
            if (isTemplate)
                (grid.footerItem as ScreenGrid).keys.focus(card, Qt.TabFocusReason)
            else
                grid.keys.focus(card, Qt.TabFocusReason)
        }
    }

    // The lines of a card in the font at hand.
    OVText {
        id: details
        role: OVText.Dense
        text: "\n"
        visible: false
        wrapMode: Text.Wrap
    }

    OVText {
        id: caption
        role: OVText.Caption
        text: " "
        visible: false
    }

    NewProjectSheet {
        id: sheet
        viewModel: projects
    }

    OVFocusScroll {
        scope: grid.footerItem
        view: grid
    }

    ScreenGrid {
        id: grid

        readonly property int headHeight: 2 * Theme.space16 + Theme.iconTile + Theme.space12 + Theme.space4
                                          + Math.ceil(details.implicitHeight * 1.5)

        anchors.fill: parent
        cardHeight: headHeight + 2 * Theme.space12 + Theme.space16 + 2 * caption.implicitHeight + 12
        focus: true
        minimumCardWidth: root.cardWidth
        model: projects.live
        screen: "projects"

        above: ScreenHeader {
            id: header
            emptyAction: qsTr("New project")
            emptySymbol: "target"
            emptyTitle: qsTr("No projects yet")
            focus: true
            isEmpty: projects.isEmpty
            symbol: "target"
            title: qsTr("Projects")
            actions: OVPrimaryButton {
                id: newProject
                focus: true
                symbol: "plus"
                text: qsTr("New project")
                onClicked: root.openSheet(activeFocus && !hovered)
            }
            onEmptyActionTriggered: root.openSheet(!newProject.activeFocus)
        }
        delegate: ProjectCard { viewModel: projects }
        footer: ScreenGrid {
            id: templates
            cardHeight: grid.headHeight
            height: count > 0 ? contentHeight : grid.padding
            interactive: false
            minimumCardWidth: root.cardWidth
            model: projects.templates
            width: grid.width

            above: Item {
                height: templates.count > 0 ? heading.implicitHeight + Theme.space24 : 0
                visible: templates.count > 0

                OVSectionHeader {
                    id: heading
                    text: qsTr("My templates")
                    width: parent.width
                    y: Theme.space8
                }
            }
            delegate: TemplateCard { viewModel: projects }
            onExited: edge => {
                if (edge === Qt.TopEdge && grid.count > 0)
                    grid.keys.focus(grid.count - 1, Qt.TabFocusReason)
            }
        }
        onExited: edge => {
            if (edge === Qt.BottomEdge)
                (footerItem as ScreenGrid).keys.focus(0, Qt.TabFocusReason)
        }
    }
}
