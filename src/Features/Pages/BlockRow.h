#pragma once

#include "Features/Pages/PageBlocks.h"
#include "Features/Pages/ShownParts.h"

#include <QCoreApplication>

/// A block of a page as its row shows it. Positions stand for the cases of the tables of type and tone, in
/// their order.
struct BlockRow {
    Q_GADGET
    Q_DECLARE_TR_FUNCTIONS(BlockRow)
    Q_PROPERTY(QUuid blockID MEMBER id FINAL)
    Q_PROPERTY(int type READ typeIndex FINAL)
    Q_PROPERTY(QString typeLabel READ typeLabel FINAL)
    /// Which body shows the block: "text", "code" or "divider".
    Q_PROPERTY(QString body READ body FINAL)
    /// The text as far as it is shown.
    Q_PROPERTY(QString blockText MEMBER text FINAL)
    /// "Characters 1–16,000 of 5,242,880" if that is not the whole text, else empty.
    Q_PROPERTY(QString partText READ partText FINAL)
    Q_PROPERTY(QString placeholder READ placeholder FINAL)
    /// 1 to 3 for a heading, else 0.
    Q_PROPERTY(int headingLevel READ headingLevel FINAL)
    /// What stands before the text: "bullet", "number", "check", "bar", "tone" or nothing.
    Q_PROPERTY(QString marker READ marker FINAL)
    /// "3." for a numbered block, else empty.
    Q_PROPERTY(QString numberText READ numberText FINAL)
    /// As wide as any number of the list.
    Q_PROPERTY(QString widestNumber READ widestNumber FINAL)
    Q_PROPERTY(bool isChecked READ isChecked FINAL)
    Q_PROPERTY(int tone READ tone FINAL)
    Q_PROPERTY(QString toneSymbol READ toneSymbol FINAL)
    /// A raw text; maybe of no known language.
    Q_PROPERTY(QString language READ language FINAL)
    /// "12 lines".
    Q_PROPERTY(QString lineCountText READ lineCountText FINAL)
    /// Before any scaling.
    Q_PROPERTY(int codeHeight READ codeHeight FINAL)
    Q_PROPERTY(bool canMoveUp READ canMoveUp FINAL)
    Q_PROPERTY(bool canMoveDown READ canMoveDown FINAL)

public:
    QUuid id;
    Block block;
    PageBlocks::Number number;
    bool isFirst = false;
    bool isLast = false;
    ShownParts::Part part;
    /// Of a divider there is none to show.
    QString text;
    /// Of a code block.
    int codeLines = 0;

    bool operator==(const BlockRow &) const = default;

    static QList<BlockRow> ofBlocks(const QList<Block> &blocks, const ShownParts &parts);
    void setBlock(const Block &next, const ShownParts &parts);

    int typeIndex() const { return int(block.type); }
    QString typeLabel() const { return enumLabel(block.type); }
    QString body() const;
    QString partText() const;
    QString placeholder() const;
    int headingLevel() const;
    QString marker() const;
    QString numberText() const;
    QString widestNumber() const;
    bool isChecked() const { return block.type == BlockType::checklist && block.checked; }
    int tone() const { return int(block.tone); }
    QString toneSymbol() const { return enumSymbol(block.tone); }
    QString language() const { return block.language; }
    QString lineCountText() const;
    int codeHeight() const;
    bool canMoveUp() const { return !isFirst; }
    bool canMoveDown() const { return !isLast; }
};
