import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem
import Orvel.Onboarding
import Orvel.Session

/// The first run: a card of six steps, after which the workspace is entered. It is worked by pointer or by keys alone:
/// Return goes on, Escape and Alt+Left go back.
FocusScope {
    id: root

    /// Where the user is, and what is chosen so far.
    readonly property alias choices: onboarding

    readonly property list<string> pages: ["WelcomeStep", "ProfileStep", "ModulesStep", "StarterStep",
                                           "AppearanceStep", "ReadyStep"]
    readonly property int margin: width < 760 || height < 640 ? Theme.space16 : Theme.space24
    /// The step that is shown, to know which way the next one comes from.
    property int shownStep: 0
    /// Whether a key led to the step, which then shows where the keyboard is.
    property bool keyed: false

    function goOn() {
        if (onboarding.isLast)
            onboarding.finish()
        else
            onboarding.goNext()
    }

    function goBackByKey() {
        keyed = true
        onboarding.goBack()
    }

    function page(step: int): OnboardingPage {
        const place = Qt.resolvedUrl(pages[step] + ".qml")
        const properties = { "onboarding": onboarding }
        const page = stack.depth === 0 ? stack.push(place, properties, T.StackView.Immediate)
                   : stack.replace(null, place, properties, Theme.motionEnabled ? T.StackView.ReplaceTransition
                                                                                 : T.StackView.Immediate)
        return page as OnboardingPage
    }

    /// Shows the page of the step and puts the keyboard where it is wanted first.
    function show() {
        stack.direction = onboarding.step > shownStep ? 1 : -1
        shownStep = onboarding.step
        const next = page(shownStep)
        next.accepted.connect(() => {
            root.keyed = true
            root.goOn()
        })
        const target = next.firstFocus ?? footer.primaryButton
        target.forceActiveFocus(keyed || (Window.activeFocusItem?.visualFocus ?? false) ? Qt.TabFocusReason
                                                                                        : Qt.OtherFocusReason)
        keyed = false
    }

    focus: true

    Component.onCompleted: page(0)
    Keys.onEscapePressed: goBackByKey()
    Keys.onPressed: event => {
        if (event.key === Qt.Key_Left && event.modifiers & Qt.AltModifier) {
            root.goBackByKey()
            event.accepted = true
        }
    }

    OnboardingViewModel {
        id: onboarding

        session: Orvel
        onStepChanged: root.show()
    }

    Rectangle {
        id: card

        anchors.centerIn: parent
        border.color: Theme.ovBorder
        border.width: Theme.lineWidth
        color: Theme.ovSurface
        height: Math.min(Math.round(680 * Math.max(1, Theme.fontScale)), root.height - 2 * root.margin)
        radius: Theme.cornerSheet
        width: Math.min(Math.round(660 * Math.max(1, Theme.fontScale)), root.width - 2 * root.margin)
        Accessible.description: onboarding.progressText
        Accessible.name: onboarding.title
        Accessible.role: Accessible.Dialog

        OVShadow {
            radius: card.radius
        }

        OnboardingHeader {
            id: header

            anchors { left: parent.left; right: parent.right; top: parent.top }
            onboarding: onboarding
        }

        T.StackView {
            id: stack

            property int direction: 1
            readonly property int slide: 24 * direction

            anchors { left: parent.left; right: parent.right; top: header.bottom; bottom: footer.top }
            clip: true

            replaceEnter: Transition {
                NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.durationScreen }
                NumberAnimation { property: "x"; from: stack.slide; to: 0; duration: Theme.durationScreen; easing.type: Easing.OutCubic }
            }
            replaceExit: Transition {
                NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Theme.durationScreen / 2 }
                NumberAnimation { property: "x"; from: 0; to: -stack.slide; duration: Theme.durationScreen; easing.type: Easing.OutCubic }
            }
        }

        OnboardingFooter {
            id: footer

            anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
            onboarding: onboarding
            onAccepted: root.goOn()
        }
    }
}
