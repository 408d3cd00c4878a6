#include "Models/Slide.h"

QString slidePlaceholder(SlideKind kind, SlideField field)
{
    struct Prompts {
        std::array<std::u16string_view, 5> byField;
    };
    static constexpr auto prompts = std::to_array<Prompts>({
        {{u"Eyebrow text", u"Presentation title", u"Subtitle, date or occasion", u"", u""}},
        {{u"01", u"Section name", u"One line about this section", u"", u""}},
        {{u"", u"The single idea", u"Supporting line", u"", u""}},
        {{u"", u"Heading", u"", u"One point per line", u""}},
        {{u"", u"Heading", u"", u"Left column — one point per line", u"Right column — one point per line"}},
        {{u"", u"", u"Who said it", u"The quotation", u""}},
        {{u"", u"Heading", u"", u"72 | Conversion rate\n1.4s | Median load\n98 | Lighthouse", u""}},
        {{u"", u"Thank you", u"How to reach you", u"", u""}},
    });
    static_assert(prompts.size() == EnumTable<SlideKind>::cases.size());
    const auto prompt = prompts.at(std::size_t(kind)).byField.at(std::size_t(field));
    return QString::fromUtf16(prompt.data(), qsizetype(prompt.size()));
}

Slide Slide::fresh(const QUuid &id)
{
    Slide slide;
    slide.id = id;
    return slide;
}
