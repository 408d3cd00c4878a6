#include "Support/ProjectTemplates.h"

const QList<ProjectTemplate> &ProjectTemplates::all()
{
    const auto words = [](const char *text) { return QString::fromUtf8(text); };
    const auto list = [&words](const char *bars) { return words(bars).split(u'|'); };
    static const QList<ProjectTemplate> templates{
        {words("launch"), words("Product launch"), words("🚀"), words("Plan, build and ship something new."),
         ProjectStatus::planning, list("Scope agreed|Build complete|Launched"),
         list("Write the brief|Design the first pass|Build the thing|Test with real users|Announce it")},
        {words("study"), words("Study plan"), words("🎓"),
         words("Structure revision across topics and dates."), ProjectStatus::inProgress,
         list("Syllabus mapped|Halfway review|Exam ready"),
         list("Map the syllabus|Gather resources|Create a revision schedule|Weekly practice test|Final "
              "review")},
        {words("trip"), words("Trip planner"), words("🧭"),
         words("Everything for the next trip in one place."), ProjectStatus::notStarted,
         list("Dates booked|Itinerary set|Packed"),
         list("Pick dates|Book transport|Book stay|Plan the itinerary|Pack")},
        {words("personal"), words("Personal goal"), words("🌱"),
         words("A simple habit or goal broken into steps."), ProjectStatus::notStarted,
         list("Started|Consistent|Achieved"),
         list("Define the goal|Break it into weekly steps|First week done|Review and adjust")},
    };
    return templates;
}
