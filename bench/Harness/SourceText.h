#pragma once

#include <QString>

/// Source code for measuring, in Swift, with every kind of token.
namespace SourceText
{
inline QString ofSize(qsizetype units)
{
    const QString piece = QStringLiteral("/// A place on the map, and how to get there.\n"
                                         "struct Place: Codable {\n"
                                         "    let name: String // never empty\n"
                                         "    var visits = 0x1F + 12.5\n"
                                         "    /* The text that people see\n"
                                         "       in lists. */\n"
                                         "    func title(for user: User) -> String {\n"
                                         "        guard visits > 0 else { return \"never \\\"seen\\\"\" }\n"
                                         "        return \"\"\"\n"
                                         "        \\(name), \\(visits) times\n"
                                         "        \"\"\"\n"
                                         "    }\n"
                                         "}\n\n");
    return piece.repeated(units / piece.size() + 1).first(units);
}
} // namespace SourceText
