#pragma once

#include <QString>

#include <array>

/// The steps of the onboarding in their order; the values count from 0.
enum class OnboardingStep { welcome, profile, modules, starter, appearance, ready };

/// What a step says above its content and on its button.
struct OnboardingStepText {
    QString title;
    QString subtitle;
    QString primary;
};

inline constexpr int onboardingStepCount = int(OnboardingStep::ready) + 1;

inline const OnboardingStepText &onboardingStepText(OnboardingStep step)
{
    static const QString goOn = QStringLiteral("Continue");
    static const std::array<OnboardingStepText, onboardingStepCount> texts{{
        {QStringLiteral("Welcome to Orvel"),
         QStringLiteral(
             "A calm, focused workspace for pages, tasks, projects and notes, all on your device."),
         QStringLiteral("Get started")},
        {QStringLiteral("Make it yours"), QStringLiteral("Tell us who you are and name your workspace."),
         goOn},
        {QStringLiteral("Choose your tools"),
         QStringLiteral("You can hide or show any of these later in Settings."), goOn},
        {QStringLiteral("Start with a little content"),
         QStringLiteral("We can drop in a few example items so nothing feels empty."), goOn},
        {QStringLiteral("Pick a look"), QStringLiteral("Orvel follows your system appearance by default."),
         goOn},
        {QStringLiteral("You're all set"), QStringLiteral("Review your setup and jump in."),
         QStringLiteral("Enter workspace")},
    }};
    return texts.at(std::size_t(step));
}
