#include "Features/Code/CodeHighlighter.h"
#include "Features/Code/CodeSyntax.h"
#include "Harness/Comparison.h"
#include "Harness/RegexTokenizer.h"
#include "Harness/SourceText.h"

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QTextDocument>

#include <cstdio>
#include <memory>

namespace
{
constexpr qsizetype documentSize = 100'000;

void benchScan(Comparison &comparison, const QString &text)
{
    const RegexTokenizer regex(CodeLanguage::swift);
    if (CodeSyntax::tokens(text, CodeLanguage::swift) != regex.tokens(text)) {
        std::fprintf(stderr, "bench_code: the two scanners don't agree\n");
        std::exit(2);
    }
    QList<CodeToken> tokens;
    const auto times = Comparison::alternate(
        41, [&] { return timed([&] { tokens = CodeSyntax::tokens(text, CodeLanguage::swift); }); },
        [&] { return timed([&] { tokens = regex.tokens(text); }); });
    comparison.timeAtMost(QStringLiteral("scan 100 KB of source, against QRegularExpression"),
                          Comparison::best(times.ours), Comparison::best(times.baseline), 0.2);
}

/// A document as an editor holds it: laid out at a width.
std::unique_ptr<QTextDocument> openDocument(const QString &text)
{
    auto document = std::make_unique<QTextDocument>();
    document->setDefaultFont(QFont(QStringLiteral("JetBrains Mono"), 10));
    document->setTextWidth(900);
    document->setPlainText(text);
    document->documentLayout()->documentSize();
    return document;
}

/// One key, then another that takes it back; the first counts.
Comparison::Duration typeKeys(QTextDocument &document, int position, const QString &keys)
{
    QTextCursor cursor(&document);
    cursor.setPosition(position);
    const auto time = timed([&] {
        cursor.insertText(keys);
        document.documentLayout()->documentSize();
    });
    for (qsizetype i = 0; i < keys.size(); ++i)
        cursor.deletePreviousChar();
    QCoreApplication::processEvents();
    return time;
}

void benchKey(Comparison &comparison, const QString &text, const QString &what, const QString &keys)
{
    const auto colored = openDocument(text), plain = openDocument(text);
    CodeHighlighter highlighter(colored.get());
    highlighter.setLanguage(CodeLanguage::swift);
    highlighter.settle();
    const int position = int(text.indexOf(QStringLiteral("never empty"), text.size() / 2));
    const auto times = Comparison::alternate(
        41,
        [&] {
            const auto time = typeKeys(*colored, position, keys);
            highlighter.settle();
            return time;
        },
        [&] { return typeKeys(*plain, position, keys); });
    comparison.timeUnder(what, Comparison::quantile(times.ours, 0.9),
                         Comparison::quantile(times.baseline, 0.9), Comparison::Duration(8));
}
} // namespace

int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    Comparison comparison;
    const QString text = SourceText::ofSize(documentSize);
    benchScan(comparison, text);
    benchKey(comparison, text, QStringLiteral("key in 100 KB of source, against no colours"),
             QStringLiteral("x"));
    benchKey(comparison, text, QStringLiteral("key that opens a comment there, against no colours"),
             QStringLiteral("\n/*"));
    return comparison.exitCode();
}
