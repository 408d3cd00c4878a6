#pragma once

#include "Models/Block.h"

#include <QStringList>

#include <optional>

/// What the editor knows about the blocks of a page and does to them. Given the id of a block that is not
/// there, an operation changes nothing.
namespace PageBlocks
{
/// Where the block with this id stands; -1 if it is not there.
qsizetype indexOf(const QList<Block> &blocks, const QUuid &id);

/// The place of a numbered block within its list.
struct Number {
    /// From 1; 0 for a block that is not numbered.
    int number = 0;
    /// How many the list has.
    int count = 0;

    bool operator==(const Number &) const = default;
};
/// One for each block.
QList<Number> numbers(const QList<Block> &blocks);

/// The types that the slash menu offers for this text, of which the first character does not count.
QList<BlockType> slashMatches(const QString &text);
/// The types that the slash menu shows while the block is edited; none if it stays closed.
QList<BlockType> slashMenu(const Block &block);

/// Lines of the text, at least one.
int codeLineCount(const QString &text);
/// Height of the editor for so many lines, before any scaling: it grows up to 16 lines.
int codeEditorHeight(int lines);
/// The height that it never exceeds.
inline constexpr int maxCodeEditorHeight = 38 + 16 * 20;

/// Puts the block directly after the one with this id; false if that is not there.
bool insertAfter(QList<Block> &blocks, const QUuid &id, const Block &block);
/// Puts a copy that has the new id directly after the block.
void duplicate(QList<Block> &blocks, const QUuid &id, const QUuid &newID);
/// Takes the block out; a list that this leaves empty gets the fresh one.
void remove(QList<Block> &blocks, const QUuid &id, const Block &fresh);
/// Moves the block by as many places, downwards if positive; beyond either end it stays.
void move(QList<Block> &blocks, const QUuid &id, int delta);
/// Keeps the text; the check mark stays for a to-do only.
void changeType(Block &block, BlockType type);

/// One change of a text: what stands from `begin` to `end` gives way to `inserted`.
struct TextEdit {
    qsizetype begin = 0;
    qsizetype end = 0;
    QString inserted;
};
/// The smallest edit that makes one text of the other.
TextEdit editBetween(const QString &before, const QString &after);

/// The lines into which an edit breaks a text of one line. Line feeds that the text had before stay in it.
struct Lines {
    /// The text that stays in the block.
    QString first;
    /// The texts of the blocks that follow it; may be empty.
    QList<QString> rest;
    /// Where the caret stands in the last of them.
    qsizetype caret = 0;
};
/// Nothing if the edit brings no line feed. One at the very end of the text is dropped.
std::optional<Lines> brokenLines(const QString &before, const TextEdit &edit);
} // namespace PageBlocks
