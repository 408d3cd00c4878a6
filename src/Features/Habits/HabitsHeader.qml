pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Orvel.DesignSystem
import Orvel.Habits

/// What is shown above the habits: the title of the screen, the figures over all habits and the form for a new one.
ScreenHeader {
    id: root

    required property HabitsViewModel viewModel

    signal composeRequested()

    function focusComposer() {
        (composer.load() as HabitComposer).focusName()
    }

    bottomGap: viewModel.isEmpty ? 0 : Theme.space16
    emptyAction: qsTr("Add your first habit")
    emptyMessage: qsTr("Habits are the small, repeatable actions that add up. Add your first one to start a streak.")
    emptySymbol: "flame"
    emptyTitle: qsTr("No habits yet")
    isEmpty: viewModel.isEmpty && !viewModel.composing
    subtitle: qsTr("Small, repeatable actions. Keep the streak alive.")
    symbol: "flame"
    title: qsTr("Habits")
    onEmptyActionTriggered: composeRequested()

    actions: OVPrimaryButton {
        id: create
        focus: true
        symbol: "plus"
        text: qsTr("New habit")
        onClicked: {
            if (root.viewModel.composing)
                root.viewModel.composing = false
            else
                root.composeRequested()
        }
    }

    RowLayout {
        spacing: Theme.space16
        visible: !root.viewModel.isEmpty
        width: parent.width

        component Figure: OVTile {
            Layout.fillWidth: true
            Layout.preferredWidth: 1
        }

        Figure { label: qsTr("Done today"); symbol: "checkmark.circle.fill"; value: root.viewModel.doneText }
        Figure { label: qsTr("Best streak"); symbol: "flame.fill"; value: root.viewModel.bestStreakText }
        Figure { label: qsTr("This week"); symbol: "chart.bar.fill"; value: root.viewModel.weekText }
    }

    OVLazyLoader {
        id: composer

        active: root.viewModel.composing
        visible: active
        width: parent.width
        // The focus must not go with the form.
        onActiveChanged: {
            if (!active)
                create.forceActiveFocus(Qt.OtherFocusReason)
        }

        sourceComponent: HabitComposer { viewModel: root.viewModel }
    }
}
