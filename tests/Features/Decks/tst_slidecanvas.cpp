#include "Features/Decks/DeckExporter.h"
#include "Features/Decks/SlideEditorCanvas.h"
#include "SampleSlides.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <QTest>

using namespace Qt::StringLiterals;

/// What the window shows is what is exported, pixel by pixel.
class SlideCanvasTest : public QObject
{
    Q_OBJECT

private:
    static QImage shownBy(SlideCanvas &canvas, const Deck &deck, int index, QSize size)
    {
        QQuickWindow window;
        window.resize(size);
        canvas.setParentItem(window.contentItem());
        canvas.setSize(size);
        canvas.setShown(ShownSlide::of(deck, index));
        const QImage image = window.grabWindow();
        canvas.setParentItem(nullptr);
        return image.convertToFormat(QImage::Format_RGB32);
    }

private slots:
    void theCanvasShowsWhatIsExported_data()
    {
        QTest::addColumn<int>("theme");
        for (int i = 0; i < SlideTheme::catalog().size(); ++i)
            QTest::addRow("%s", qPrintable(SlideTheme::catalog()[i].id)) << i;
    }
    void theCanvasShowsWhatIsExported()
    {
        QFETCH(int, theme);
        Deck deck = SampleSlides::deck();
        deck.theme = SlideTheme::catalog()[theme];
        deck.slides[0].title = u"Tea ☕ -> calm ❤️"_s;
        for (int i = 0; i < deck.slides.size(); ++i) {
            const QImage exported = DeckExporter::picture(deck, i);
            SlideCanvas canvas;
            QCOMPARE(shownBy(canvas, deck, i, exported.size()), exported);
            if (theme > 0)
                continue;
            // In the editor, as long as nothing is edited and no prompt shows.
            SlideEditorCanvas editor;
            QCOMPARE(shownBy(editor, deck, i, exported.size()), exported);
        }
    }

    void promptsShowInTheEditorAlone()
    {
        Deck deck = SampleSlides::deck();
        deck.slides = {Slide()};
        const QSize size(640, 360);
        SlideCanvas canvas;
        SlideEditorCanvas editor;
        QVERIFY(shownBy(canvas, deck, 0, size) != shownBy(editor, deck, 0, size));
    }

    void theTextBeingEditedStandsWhereItIsExported()
    {
        Deck deck = SampleSlides::deck();
        deck.slides = {SampleSlides::slide(SlideKind::bullets)};
        const QSize size(1280, 720);
        SlideCanvas canvas;
        SlideEditorCanvas editor;
        editor.setShown(ShownSlide::of(deck, 0));
        editor.setField(u"body"_s);
        editor.setText(deck.slides[0].body);
        QCOMPARE(shownBy(editor, deck, 0, size), shownBy(canvas, deck, 0, size));
        QVERIFY(editor.rectOf(u"body"_s).contains(editor.caretRect().center()));
    }
};

int main(int argc, char *argv[])
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication application(argc, argv);
    SlideCanvasTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_slidecanvas.moc"
