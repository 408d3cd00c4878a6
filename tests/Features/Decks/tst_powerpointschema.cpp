#include "PackageReader.h"
#include "SampleSlides.h"

#include <QDir>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace
{
const QString types = u"application/vnd.openxmlformats-"_s;
const QString slideTypes = types + u"officedocument.presentationml."_s;

/// The children of each element in the order that the schema wants, as an expression over their names, each
/// followed by a blank. What is not listed has none.
const QHash<QString, QString> sequences{
    {u"Types"_s, u"(Default )+(Override )+"_s},
    {u"Relationships"_s, u"(Relationship )+"_s},
    {u"cp:coreProperties"_s, u"dc:title dc:creator dc:lastModifiedBy dcterms:created dcterms:modified "_s},
    {u"Properties"_s, u"Application PresentationFormat Slides Notes "_s},
    {u"p:presentation"_s, u"p:sldMasterIdLst (p:sldIdLst )?p:sldSz p:notesSz "_s},
    {u"p:sldMasterIdLst"_s, u"p:sldMasterId "_s},
    {u"p:sldIdLst"_s, u"(p:sldId )+"_s},
    {u"p:sld"_s, u"p:cSld p:clrMapOvr "_s},
    {u"p:sldLayout"_s, u"p:cSld p:clrMapOvr "_s},
    {u"p:sldMaster"_s, u"p:cSld p:clrMap p:sldLayoutIdLst p:txStyles "_s},
    {u"p:clrMapOvr"_s, u"a:masterClrMapping "_s},
    {u"p:sldLayoutIdLst"_s, u"p:sldLayoutId "_s},
    {u"p:cSld"_s, u"(p:bg )?p:spTree "_s},
    {u"p:bg"_s, u"p:bgPr "_s},
    {u"p:bgPr"_s, u"a:solidFill a:effectLst "_s},
    {u"p:spTree"_s, u"p:nvGrpSpPr p:grpSpPr (p:sp )*"_s},
    {u"p:nvGrpSpPr"_s, u"p:cNvPr p:cNvGrpSpPr p:nvPr "_s},
    {u"p:grpSpPr"_s, u"a:xfrm "_s},
    {u"p:sp"_s, u"p:nvSpPr p:spPr p:txBody "_s},
    {u"p:nvSpPr"_s, u"p:cNvPr p:cNvSpPr p:nvPr "_s},
    {u"p:spPr"_s, u"a:xfrm a:prstGeom (a:noFill |a:solidFill )a:ln "_s},
    {u"p:txBody"_s, u"a:bodyPr a:lstStyle (a:p )+"_s},
    {u"p:txStyles"_s, u"p:titleStyle p:bodyStyle p:otherStyle "_s},
    {u"p:titleStyle"_s, u"a:lvl1pPr "_s},
    {u"p:bodyStyle"_s, u"a:lvl1pPr "_s},
    {u"p:otherStyle"_s, u"a:lvl1pPr "_s},
    {u"a:lvl1pPr"_s, u"a:defRPr "_s},
    {u"a:defRPr"_s, u"a:solidFill a:latin "_s},
    {u"a:xfrm"_s, u"a:off a:ext (a:chOff a:chExt )?"_s},
    {u"a:prstGeom"_s, u"a:avLst "_s},
    {u"a:avLst"_s, u"(a:gd )?"_s},
    {u"a:solidFill"_s, u"(a:srgbClr |a:schemeClr )"_s},
    {u"a:srgbClr"_s, u"(a:alpha )?"_s},
    {u"a:ln"_s, u"(a:noFill |a:solidFill )(a:prstDash )?"_s},
    {u"a:bodyPr"_s, u"(a:normAutofit )?"_s},
    {u"a:p"_s, u"(a:pPr )?(a:r |a:br )*"_s},
    {u"a:pPr"_s, u"a:lnSpc "_s},
    {u"a:lnSpc"_s, u"a:spcPts "_s},
    {u"a:r"_s, u"a:rPr a:t "_s},
    {u"a:rPr"_s, u"a:solidFill a:latin "_s},
    {u"a:theme"_s, u"a:themeElements a:objectDefaults a:extraClrSchemeLst "_s},
    {u"a:themeElements"_s, u"a:clrScheme a:fontScheme a:fmtScheme "_s},
    {u"a:clrScheme"_s,
     u"a:dk1 a:lt1 a:dk2 a:lt2 a:accent1 a:accent2 a:accent3 a:accent4 a:accent5 a:accent6 a:hlink a:folHlink "_s},
    {u"a:fontScheme"_s, u"a:majorFont a:minorFont "_s},
    {u"a:majorFont"_s, u"a:latin a:ea a:cs "_s},
    {u"a:minorFont"_s, u"a:latin a:ea a:cs "_s},
    {u"a:fmtScheme"_s, u"a:fillStyleLst a:lnStyleLst a:effectStyleLst a:bgFillStyleLst "_s},
    {u"a:fillStyleLst"_s, u"(a:solidFill ){3,}"_s},
    {u"a:lnStyleLst"_s, u"(a:ln ){3,}"_s},
    {u"a:effectStyleLst"_s, u"(a:effectStyle ){3,}"_s},
    {u"a:bgFillStyleLst"_s, u"(a:solidFill ){3,}"_s},
    {u"a:effectStyle"_s, u"a:effectLst "_s},
};

const QRegularExpression schemeSlot(u"^a:(dk|lt|accent)[1-6]$|^a:(folH|h)link$"_s);

struct Bounds {
    qint64 least = 0;
    qint64 most = 0;
};
/// Attributes that count something.
const QHash<QString, Bounds> bounds{
    {u"a:rPr sz"_s, {100, 400000}},
    {u"a:rPr spc"_s, {-400000, 400000}},
    {u"a:spcPts val"_s, {0, 158400}},
    {u"a:normAutofit fontScale"_s, {1000, 100000}},
    {u"a:alpha val"_s, {0, 100000}},
    {u"a:ln w"_s, {0, 20116800}},
    {u"a:ext cx"_s, {0, 27273042316900}},
    {u"a:ext cy"_s, {0, 27273042316900}},
    {u"p:cNvPr id"_s, {1, 0x7fffffff}},
    {u"p:sldId id"_s, {256, 0x7fffffff}},
    {u"p:sldMasterId id"_s, {0x80000000, 0xffffffff}},
    {u"p:sldLayoutId id"_s, {0x80000000, 0xffffffff}},
};

/// What is wrong in an element and all below it; empty if nothing is.
QString fault(QXmlStreamReader &reader)
{
    const QString name = reader.qualifiedName().toString();
    for (const QXmlStreamAttribute &attribute : reader.attributes()) {
        const QString key = name + u' ' + attribute.qualifiedName().toString();
        const auto bound = bounds.constFind(key);
        const qint64 value = attribute.value().toLongLong();
        if (bound != bounds.cend() && (value < bound->least || value > bound->most))
            return key + u" is "_s + attribute.value().toString();
    }
    QString children;
    while (!reader.atEnd() && reader.readNext() != QXmlStreamReader::EndElement) {
        if (reader.tokenType() != QXmlStreamReader::StartElement)
            continue;
        children += reader.qualifiedName().toString() + u' ';
        if (const QString below = fault(reader); !below.isEmpty())
            return below;
    }
    const QString wanted = schemeSlot.match(name).hasMatch() ? u"a:srgbClr "_s : sequences.value(name);
    const bool isRight = QRegularExpression(u'^' + wanted + u'$').match(children).hasMatch();
    return isRight ? QString() : name + u" has "_s + children;
}
} // namespace

/// Packages keep to the schema and to the conventions of packages, so that strict programs open them too.
class PowerPointSchemaTest : public QObject
{
    Q_OBJECT

private:
    struct Relationship {
        QString type;
        QString target;
    };

    static QList<Deck> decks()
    {
        QList<Deck> decks;
        for (const SlideTheme &theme : SlideTheme::catalog()) {
            Deck deck = SampleSlides::deck();
            deck.theme = theme;
            decks.append(deck);
        }
        for (Slide &slide : decks.first().slides)
            SampleSlides::overfill(slide);
        for (Slide &slide : decks.last().slides)
            slide = {.kind = slide.kind};
        return decks;
    }

    /// The relationships of a part by their ids.
    static QMap<QString, Relationship> relationships(const QMap<QString, QByteArray> &parts,
                                                     const QString &name)
    {
        const QString folder = name.contains(u'/') ? name.section(u'/', 0, -2) + u'/' : QString();
        QXmlStreamReader reader(parts.value(folder + u"_rels/"_s + name.section(u'/', -1) + u".rels"_s));
        QMap<QString, Relationship> found;
        while (!reader.atEnd())
            if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == u"Relationship")
                found.insert(reader.attributes().value(u"Id"_s).toString(),
                             {reader.attributes().value(u"Type"_s).toString().section(u'/', -1),
                              QDir::cleanPath(folder + reader.attributes().value(u"Target"_s).toString())});
        return found;
    }

    static QMap<QString, QString> contentTypes(const QByteArray &xml)
    {
        QMap<QString, QString> byPart;
        QXmlStreamReader reader(xml);
        while (!reader.atEnd())
            if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == u"Override")
                byPart.insert(reader.attributes().value(u"PartName"_s).mid(1).toString(),
                              reader.attributes().value(u"ContentType"_s).toString().chopped(4));
        return byPart;
    }

private slots:
    void everyElementHasItsChildrenInOrder()
    {
        for (const Deck &deck : decks())
            for (const PackageReader::Part &part : PackageReader::partsOf(deck)) {
                QXmlStreamReader reader(part.data);
                QVERIFY(reader.readNextStartElement());
                const QString found = fault(reader);
                QVERIFY2(found.isEmpty(), qPrintable(part.name + u": "_s + found));
                QVERIFY2(!reader.hasError(), qPrintable(part.name + reader.errorString()));
            }
    }

    /// From the root every part is reached, by a relationship of the kind that the part's type says.
    void everyPartIsReachedAsWhatItIs()
    {
        static const QHash<QString, QString> typeOf{
            {u"officeDocument"_s, slideTypes + u"presentation.main"_s},
            {u"core-properties"_s, types + u"package.core-properties"_s},
            {u"extended-properties"_s, types + u"officedocument.extended-properties"_s},
            {u"slideMaster"_s, slideTypes + u"slideMaster"_s},
            {u"slideLayout"_s, slideTypes + u"slideLayout"_s},
            {u"slide"_s, slideTypes + u"slide"_s},
            {u"theme"_s, types + u"officedocument.theme"_s},
        };
        const auto parts = PackageReader::package(SampleSlides::deck());
        const auto contents = contentTypes(parts[u"[Content_Types].xml"_s]);
        QSet<QString> reached;
        QStringList waiting{QString()};
        while (!waiting.isEmpty()) {
            const auto found = relationships(parts, waiting.takeLast());
            for (const Relationship &relationship : found) {
                QVERIFY2(parts.contains(relationship.target), qPrintable(relationship.target));
                QCOMPARE(contents.value(relationship.target), typeOf.value(relationship.type));
                if (!reached.contains(relationship.target))
                    waiting.append(relationship.target);
                reached.insert(relationship.target);
            }
        }
        const QStringList typed = contents.keys();
        QCOMPARE(reached, QSet<QString>(typed.begin(), typed.end()));
        QCOMPARE(reached.size(), parts.size() - parts.keys().filter(u".rels"_s).size() - 1);
    }

    /// Whatever a part refers to by an id of a relationship is there, of the right kind, and named once; and
    /// the ids of its own are told apart.
    void idsAreRightAndTellApart()
    {
        static const QHash<QString, QString> kindOf{{u"p:sldMasterId"_s, u"slideMaster"_s},
                                                    {u"p:sldLayoutId"_s, u"slideLayout"_s},
                                                    {u"p:sldId"_s, u"slide"_s}};
        const auto parts = PackageReader::package(SampleSlides::deck());
        QStringList lasting;
        for (auto part = parts.cbegin(); part != parts.cend(); ++part) {
            if (part.key().endsWith(u".rels") || !part.key().startsWith(u"ppt/"))
                continue;
            const auto related = relationships(parts, part.key());
            QStringList shapes, used;
            QXmlStreamReader reader(*part);
            while (!reader.atEnd()) {
                if (reader.readNext() != QXmlStreamReader::StartElement)
                    continue;
                const QString name = reader.qualifiedName().toString();
                const QString id = reader.attributes().value(u"id"_s).toString();
                if (name == u"p:cNvPr")
                    shapes.append(id);
                if (kindOf.contains(name)) {
                    used.append(reader.attributes().value(u"r:id"_s).toString());
                    QCOMPARE(related.value(used.last()).type, kindOf[name]);
                    lasting.append((name == u"p:sldId" ? u"slide "_s : u"master "_s) + id);
                }
            }
            QCOMPARE(shapes.removeDuplicates(), 0);
            QCOMPARE(used.removeDuplicates(), 0);
        }
        QCOMPARE(lasting.size(), 2 + SampleSlides::deck().slides.size());
        QCOMPARE(lasting.removeDuplicates(), 0);
    }
};

QTEST_MAIN(PowerPointSchemaTest)
#include "tst_powerpointschema.moc"
