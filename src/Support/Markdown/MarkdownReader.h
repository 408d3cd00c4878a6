#pragma once

#include "Support/Markdown/BlockMarkdown.h"

#include <md4c.h>
#include <optional>

/// Takes the blocks that the parser reports and makes blocks of a page of them.
class MarkdownReader
{
public:
    BlockMarkdown::Reading read(const QString &markdown);

private:
    /// A quote or an item of a list that is open.
    struct Container {
        bool isQuote = false;
        bool isOrdered = false;
        /// Whether an item has no text yet.
        bool isFresh = true;
        /// Of a quote that is a callout.
        std::optional<CalloutTone> tone;
    };
    /// What the text that comes belongs to.
    enum class Leaf { none, paragraph, heading, code, html };

    void enterBlock(MD_BLOCKTYPE type, const void *detail);
    void leaveBlock(MD_BLOCKTYPE type);
    void takeText(MD_TEXTTYPE type, const char *text, MD_SIZE size);

    void noteNesting();
    void beginLeaf(Leaf leaf);
    void endLeaf();
    void endContainer();
    void addLines();
    void addCode(const QString &language, QString text);
    void add(Block block);
    /// A block of the type that a text at this place has.
    Block textBlock();
    /// Takes the line away that makes a callout of a quote; false if there is none.
    bool takeTone(QStringList &lines);

    BlockMarkdown::Reading m_reading;
    QList<Container> m_containers;
    QList<bool> m_listsAreOrdered;
    Leaf m_leaf = Leaf::none;
    int m_headingLevel = 0;
    QString m_language;
    QByteArray m_text;
};
