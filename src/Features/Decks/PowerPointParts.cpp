#include "Features/Decks/PowerPointParts.h"

#include "Features/Decks/DeckLayout.h"
#include "Features/Decks/PowerPointShapes.h"

using namespace Qt::StringLiterals;
using PowerPointShapes::colorXML;
using PowerPointShapes::escaped;
using PowerPointShapes::fontName;

namespace
{
const QString head = u"<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"_s;
const QString schemas = u"http://schemas.openxmlformats.org"_s;
const QString officeRelationship = schemas + u"/officeDocument/2006/relationships"_s;
const QString packageRelationship = schemas + u"/package/2006/relationships"_s;
const QString namespaces = u" xmlns:a=\""_s + schemas + u"/drawingml/2006/main\" xmlns:r=\""_s +
                           officeRelationship + u"\" xmlns:p=\""_s + schemas +
                           u"/presentationml/2006/main\""_s;

const QString emptyGroup =
    u"<p:nvGrpSpPr><p:cNvPr id=\"1\" name=\"\"/><p:cNvGrpSpPr/><p:nvPr/></p:nvGrpSpPr><p:grpSpPr><a:xfrm>"
    "<a:off x=\"0\" y=\"0\"/><a:ext cx=\"0\" cy=\"0\"/><a:chOff x=\"0\" y=\"0\"/><a:chExt cx=\"0\" cy=\"0\"/>"
    "</a:xfrm></p:grpSpPr>"_s;

struct Relationship {
    QString type;
    QString target;
};

/// The rows are numbered rId1, rId2, ... in order.
QString relationships(const QList<Relationship> &rows)
{
    QString xml = head + u"<Relationships xmlns=\""_s + packageRelationship + u"\">"_s;
    for (qsizetype i = 0; i < rows.size(); ++i)
        xml += u"<Relationship Id=\"rId%1\" Type=\""_s.arg(i + 1) + rows[i].type + u"\" Target=\""_s +
               rows[i].target + u"\"/>"_s;
    return xml + u"</Relationships>"_s;
}

QString backgroundXML(const SlideTheme &theme)
{
    return u"<p:bg><p:bgPr><a:solidFill>"_s + colorXML(theme.background) +
           u"</a:solidFill><a:effectLst/></p:bgPr></p:bg>"_s;
}

QString overrideXML(const QString &part, const QString &type)
{
    return u"<Override PartName=\""_s + part + u"\" ContentType=\"application/vnd.openxmlformats-"_s + type +
           u"+xml\"/>"_s;
}
} // namespace

QString PowerPointParts::contentTypes(qsizetype slideCount)
{
    const QString ml = u"officedocument.presentationml."_s;
    QString xml = head + u"<Types xmlns=\""_s + schemas +
                  u"/package/2006/content-types\"><Default Extension=\"rels\" "
                  "ContentType=\"application/vnd.openxmlformats-package.relationships+xml\"/>"
                  "<Default Extension=\"xml\" ContentType=\"application/xml\"/>"_s;
    xml += overrideXML(u"/ppt/presentation.xml"_s, ml + u"presentation.main"_s);
    xml += overrideXML(u"/ppt/slideMasters/slideMaster1.xml"_s, ml + u"slideMaster"_s);
    xml += overrideXML(u"/ppt/slideLayouts/slideLayout1.xml"_s, ml + u"slideLayout"_s);
    xml += overrideXML(u"/ppt/theme/theme1.xml"_s, u"officedocument.theme"_s);
    xml += overrideXML(u"/docProps/core.xml"_s, u"package.core-properties"_s);
    xml += overrideXML(u"/docProps/app.xml"_s, u"officedocument.extended-properties"_s);
    for (qsizetype i = 1; i <= slideCount; ++i)
        xml += overrideXML(u"/ppt/slides/slide%1.xml"_s.arg(i), ml + u"slide"_s);
    return xml + u"</Types>"_s;
}

QString PowerPointParts::packageRelationships()
{
    return relationships({{officeRelationship + u"/officeDocument"_s, u"ppt/presentation.xml"_s},
                          {packageRelationship + u"/metadata/core-properties"_s, u"docProps/core.xml"_s},
                          {officeRelationship + u"/extended-properties"_s, u"docProps/app.xml"_s}});
}

QString PowerPointParts::coreProperties(const Deck &deck)
{
    const QString author = escaped(deck.author.isEmpty() ? u"Orvel"_s : deck.author);
    const auto stamp = isoTimestamp(deck.updatedDate);
    const QString time = QString::fromLatin1(stamp.data(), qsizetype(stamp.size()));
    return head + u"<cp:coreProperties xmlns:cp=\""_s + schemas +
           u"/package/2006/metadata/core-properties\" xmlns:dc=\"http://purl.org/dc/elements/1.1/\" "
           "xmlns:dcterms=\"http://purl.org/dc/terms/\" xmlns:dcmitype=\"http://purl.org/dc/dcmitype/\" "
           "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"><dc:title>"_s +
           escaped(deck.title) + u"</dc:title><dc:creator>"_s + author +
           u"</dc:creator><dc:lastModifiedBy>"_s + author +
           u"</dc:lastModifiedBy><dcterms:created xsi:type=\"dcterms:W3CDTF\">"_s + time +
           u"</dcterms:created><dcterms:modified xsi:type=\"dcterms:W3CDTF\">"_s + time +
           u"</dcterms:modified></cp:coreProperties>"_s;
}

QString PowerPointParts::appProperties(qsizetype slideCount)
{
    return head + u"<Properties xmlns=\""_s + schemas +
           u"/officeDocument/2006/extended-properties\" xmlns:vt=\""_s + schemas +
           u"/officeDocument/2006/docPropsVTypes\"><Application>Orvel</Application>"
           "<PresentationFormat>On-screen Show (16:9)</PresentationFormat><Slides>"_s +
           QString::number(slideCount) + u"</Slides><Notes>Exported from Orvel</Notes></Properties>"_s;
}

QString PowerPointParts::presentation(qsizetype slideCount)
{
    QString xml = head + u"<p:presentation"_s + namespaces +
                  u"><p:sldMasterIdLst><p:sldMasterId id=\"2147483648\" r:id=\"rId1\"/></p:sldMasterIdLst>"
                  "<p:sldIdLst>"_s;
    for (qsizetype i = 0; i < slideCount; ++i)
        xml += u"<p:sldId id=\"%1\" r:id=\"rId%2\"/>"_s.arg(256 + i).arg(i + 2);
    return xml +
           u"</p:sldIdLst><p:sldSz cx=\"12192000\" cy=\"6858000\"/><p:notesSz cx=\"6858000\" cy=\"9144000\"/>"
           "</p:presentation>"_s;
}

QString PowerPointParts::presentationRelationships(qsizetype slideCount)
{
    QList<Relationship> rows{{officeRelationship + u"/slideMaster"_s, u"slideMasters/slideMaster1.xml"_s}};
    for (qsizetype i = 1; i <= slideCount; ++i)
        rows.append({officeRelationship + u"/slide"_s, u"slides/slide%1.xml"_s.arg(i)});
    return relationships(rows);
}

QString PowerPointParts::slide(const Deck &deck, int index)
{
    QString xml = head + u"<p:sld"_s + namespaces + u"><p:cSld>"_s + backgroundXML(deck.theme) +
                  u"<p:spTree>"_s + emptyGroup;
    int id = 1;
    for (const SlideRegion &region : DeckLayout::regions(
             deck.slides[index], deck.theme, index, int(deck.slides.size()), deck.showNumbers, deck.title))
        xml += PowerPointShapes::shapeXML(region, ++id, deck.theme);
    return xml + u"</p:spTree></p:cSld><p:clrMapOvr><a:masterClrMapping/></p:clrMapOvr></p:sld>"_s;
}

QString PowerPointParts::slideRelationships()
{
    return relationships({{officeRelationship + u"/slideLayout"_s, u"../slideLayouts/slideLayout1.xml"_s}});
}

QString PowerPointParts::master(const SlideTheme &theme)
{
    const QString character = u"<a:solidFill>"_s + colorXML(theme.ink) +
                              u"</a:solidFill><a:latin typeface=\""_s + fontName(theme.fontKind) +
                              u"\"/></a:defRPr></a:lvl1pPr>"_s;
    return head + u"<p:sldMaster"_s + namespaces + u"><p:cSld>"_s + backgroundXML(theme) + u"<p:spTree>"_s +
           emptyGroup +
           u"</p:spTree></p:cSld><p:clrMap bg1=\"lt1\" tx1=\"dk1\" bg2=\"lt2\" tx2=\"dk2\" "
           u"accent1=\"accent1\" "
           "accent2=\"accent2\" accent3=\"accent3\" accent4=\"accent4\" accent5=\"accent5\" "
           "accent6=\"accent6\" "
           "hlink=\"hlink\" folHlink=\"folHlink\"/><p:sldLayoutIdLst><p:sldLayoutId id=\"2147483649\" "
           "r:id=\"rId1\"/>"
           "</p:sldLayoutIdLst><p:txStyles><p:titleStyle><a:lvl1pPr algn=\"l\"><a:defRPr sz=\"5700\" b=\"1\">"_s +
           character + u"</p:titleStyle><p:bodyStyle><a:lvl1pPr><a:defRPr sz=\"2400\">"_s + character +
           u"</p:bodyStyle><p:otherStyle><a:lvl1pPr><a:defRPr sz=\"1800\">"_s + character +
           u"</p:otherStyle></p:txStyles></p:sldMaster>"_s;
}

QString PowerPointParts::masterRelationships()
{
    return relationships({{officeRelationship + u"/slideLayout"_s, u"../slideLayouts/slideLayout1.xml"_s},
                          {officeRelationship + u"/theme"_s, u"../theme/theme1.xml"_s}});
}

QString PowerPointParts::layout()
{
    return head + u"<p:sldLayout"_s + namespaces +
           u" type=\"blank\" preserve=\"1\"><p:cSld name=\"Blank\"><p:spTree>"_s + emptyGroup +
           u"</p:spTree></p:cSld><p:clrMapOvr><a:masterClrMapping/></p:clrMapOvr></p:sldLayout>"_s;
}

QString PowerPointParts::layoutRelationships()
{
    return relationships({{officeRelationship + u"/slideMaster"_s, u"../slideMasters/slideMaster1.xml"_s}});
}

QString PowerPointParts::theme(const SlideTheme &theme)
{
    const QList<std::pair<QString, QString>> colors{
        {u"dk1"_s, theme.ink},        {u"lt1"_s, theme.background}, {u"dk2"_s, theme.ink},
        {u"lt2"_s, theme.wash},       {u"accent1"_s, theme.accent}, {u"accent2"_s, theme.soft},
        {u"accent3"_s, theme.band},   {u"accent4"_s, theme.accent}, {u"accent5"_s, theme.soft},
        {u"accent6"_s, theme.accent}, {u"hlink"_s, theme.accent},   {u"folHlink"_s, theme.soft}};
    const QString font = u"<a:latin typeface=\""_s + fontName(theme.fontKind) +
                         u"\"/><a:ea typeface=\"\"/><a:cs typeface=\"\"/>"_s;
    const QString fill = u"<a:solidFill><a:schemeClr val=\"phClr\"/></a:solidFill>"_s;
    const QString effect = u"<a:effectStyle><a:effectLst/></a:effectStyle>"_s;

    QString xml = head + u"<a:theme xmlns:a=\""_s + schemas +
                  u"/drawingml/2006/main\" name=\"Orvel\"><a:themeElements><a:clrScheme name=\"Orvel\">"_s;
    for (const auto &[slot, color] : colors)
        xml += u"<a:"_s + slot + u'>' + colorXML(color) + u"</a:"_s + slot + u'>';
    xml += u"</a:clrScheme><a:fontScheme name=\"Orvel\"><a:majorFont>"_s + font +
           u"</a:majorFont><a:minorFont>"_s + font +
           u"</a:minorFont></a:fontScheme><a:fmtScheme name=\"Orvel\"><a:fillStyleLst>"_s + fill.repeated(3) +
           u"</a:fillStyleLst><a:lnStyleLst>"_s;
    for (const int width : {6350, 12700, 19050})
        xml += u"<a:ln w=\"%1\" cap=\"flat\" cmpd=\"sng\" algn=\"ctr\">"_s.arg(width) + fill +
               u"<a:prstDash val=\"solid\"/></a:ln>"_s;
    return xml + u"</a:lnStyleLst><a:effectStyleLst>"_s + effect.repeated(3) +
           u"</a:effectStyleLst><a:bgFillStyleLst>"_s + fill.repeated(3) +
           u"</a:bgFillStyleLst></a:fmtScheme></a:themeElements><a:objectDefaults/><a:extraClrSchemeLst/></a:theme>"_s;
}
