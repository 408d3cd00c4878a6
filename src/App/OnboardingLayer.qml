import QtQuick
import Orvel.App
import Orvel.Onboarding

/// The onboarding, in the appearance that is being chosen in it.
FocusScope {
    focus: true

    OnboardingView {
        id: onboarding

        anchors.fill: parent
        focus: true
    }

    AppearanceTrial {
        appearance: onboarding.choices.appearance
    }
}
