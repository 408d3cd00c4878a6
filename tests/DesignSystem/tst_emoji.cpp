#include "DesignSystem/OVEmojiProvider.h"

#include <QTest>
#include <QUrl>

#include <algorithm>

class TestEmoji : public QObject
{
    Q_OBJECT

private slots:
    void anyTextComesBackFromItsAddress_data();
    void anyTextComesBackFromItsAddress();
    void onlyTextsTakeTheColorOfTheirPlace();
};

namespace
{
constexpr int height = 32;

/// As the engine asks for it.
QImage drawn(const QString &text, const QColor &color)
{
    const QUrl url(OVEmojiProvider::source(text, color));
    QSize size;
    QImage image = OVEmojiProvider().requestImage(
        url.toString(QUrl::RemoveScheme | QUrl::RemoveAuthority).mid(1), &size, QSize(height, height));
    return size == image.size() ? image : QImage();
}

bool holds(const QImage &image, const QColor &color)
{
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) == color)
                return true;
    return false;
}

bool isBlank(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y).alpha() > 0)
                return false;
    return true;
}
} // namespace

void TestEmoji::anyTextComesBackFromItsAddress_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("emoji") << QStringLiteral("🧭");
    QTest::newRow("several people") << QStringLiteral("👩‍👩‍👧‍👦");
    QTest::newRow("letters") << QStringLiteral("Ab");
    QTest::newRow("signs of an address") << QStringLiteral("#/?%41");
    QTest::newRow("half of a pair") << QString(QChar(0xd83d));
    QTest::newRow("a very long text") << QString(100'000, u'W');
}

void TestEmoji::anyTextComesBackFromItsAddress()
{
    QFETCH(const QString, text);
    const QImage image = drawn(text, Qt::red);
    QVERIFY(!isBlank(image));
    QVERIFY(image.height() >= height && image.height() < 2 * height);
    QVERIFY2(image.width() < 40 * height, qPrintable(QString::number(image.width())));
    QVERIFY(OVEmojiProvider::source({}, Qt::red).isEmpty());
}

void TestEmoji::onlyTextsTakeTheColorOfTheirPlace()
{
    QCOMPARE(OVEmojiProvider::source(QStringLiteral("🧭"), Qt::red),
             OVEmojiProvider::source(QStringLiteral("🧭"), Qt::blue));
    QVERIFY(holds(drawn(QStringLiteral("HH"), Qt::red), Qt::red));
    QVERIFY(holds(drawn(QStringLiteral("HH"), Qt::blue), Qt::blue));
}

QTEST_MAIN(TestEmoji)
#include "tst_emoji.moc"
