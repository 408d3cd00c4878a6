#pragma once

#include "Foundation/Timestamp.h"

#include <QStringList>
#include <QUuid>

#include <array>
#include <functional>
#include <string_view>

/// Lets equal short texts read one after the other share their contents: keys of table rows, names of
/// languages, icons and the like come in thousands.
class SharedTexts
{
public:
    QString text(std::string_view utf8);

private:
    /// Longer texts are seldom equal. Ids as text have 36 characters.
    static constexpr std::size_t longest = 36;
    static constexpr std::size_t places = 256;

    static std::size_t slot(std::string_view utf8);

    struct Known {
        std::array<char, longest> utf8;
        QString text;
        std::size_t size = longest + 1;
    };
    std::array<Known, places> m_known;
};

/// What a document holds that the records read from it do not: it would be lost if they were written back.
struct DecodeReport {
    /// The keys of tolerant records whose values were there but could not be read, each once.
    QStringList unreadableKeys;
    /// Whether some object has a key that its record does not know.
    bool hasUnknownKeys = false;

    void addUnreadable(std::string_view key);
};

/// What goes along with the reading of one document.
struct DecodeContext {
    /// What a fresh record needs when a tolerant one has to be filled up.
    Timestamp now;
    std::function<QUuid()> makeId = &QUuid::createUuid;
    mutable SharedTexts texts = {};
    mutable DecodeReport report = {};
};
