#pragma once

#include "Features/Pages/PageSelection.h"
#include "Session/ViewModel.h"
#include "Support/PageText.h"

#include <QPointer>
#include <QTimer>

/// What stands above the blocks of a page: its title, its icon and what is known about it.
class PageHeaderViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QUuid pageID READ pageID WRITE setPageID NOTIFY pageIDChanged REQUIRED FINAL)

    Q_PROPERTY(QString title READ title NOTIFY titleChanged FINAL)
    /// Whether the page still has the title that it was made with.
    Q_PROPERTY(bool isUnnamed READ isUnnamed NOTIFY titleChanged FINAL)
    Q_PROPERTY(QString icon READ icon NOTIFY iconChanged FINAL)
    /// The icons to choose from.
    Q_PROPERTY(QList<QString> icons READ icons CONSTANT FINAL)
    Q_PROPERTY(bool isFavorite READ isFavorite NOTIFY isFavoriteChanged FINAL)
    Q_PROPERTY(bool isNote READ isNote NOTIFY kindChanged FINAL)
    Q_PROPERTY(QString kindText READ kindText NOTIFY kindChanged FINAL)
    Q_PROPERTY(QString backText READ backText NOTIFY kindChanged FINAL)
    Q_PROPERTY(QString convertText READ convertText NOTIFY kindChanged FINAL)
    Q_PROPERTY(QString editedText READ editedText NOTIFY editedTextChanged FINAL)
    /// The counts follow a while after the last change.
    Q_PROPERTY(QString wordsText READ wordsText NOTIFY countsChanged FINAL)
    /// "70 words, 412 characters".
    Q_PROPERTY(QString countsText READ countsText NOTIFY countsChanged FINAL)
    /// "12 words selected"; empty without a selection.
    Q_PROPERTY(QString selectedWordsText READ selectedWordsText NOTIFY selectedCountsChanged FINAL)
    Q_PROPERTY(QString selectedCountsText READ selectedCountsText NOTIFY selectedCountsChanged FINAL)
    /// What is selected: blocks, or else a text.
    Q_PROPERTY(PageSelection *selection READ selection WRITE setSelection NOTIFY selectionChanged FINAL)
    Q_PROPERTY(QString selectedText READ selectedText WRITE setSelectedText NOTIFY selectedTextChanged FINAL)
    Q_PROPERTY(QString readingTimeText READ readingTimeText NOTIFY countsChanged FINAL)

public:
    /// @param countDelay from the last change of the page until its words are counted again
    explicit PageHeaderViewModel(QObject *parent = nullptr,
                                 std::chrono::milliseconds countDelay = std::chrono::milliseconds(300));

    QUuid pageID() const { return m_pageID; }
    void setPageID(const QUuid &pageID);

    const QString &title() const { return m_face.title; }
    /// The longest title that can be written; one that is longer already may stay as long as it is.
    static constexpr qsizetype maxTitleLength = 1000;
    /// Gives the page this title, on one line and cut where it is too long. Returns the title that the page
    /// then has.
    Q_INVOKABLE QString setTitle(const QString &title);
    bool isUnnamed() const { return m_face.title == Page().title; }
    const QString &icon() const { return m_face.icon; }
    Q_INVOKABLE void setIcon(const QString &icon);
    QList<QString> icons() const;
    bool isFavorite() const { return m_face.isFavorite; }
    Q_INVOKABLE void toggleFavorite();
    bool isNote() const { return m_face.kind == PageKind::note; }
    QString kindText() const { return enumLabel(m_face.kind); }
    QString convertText() const;
    /// Makes a note of the page or a page of the note.
    Q_INVOKABLE void convert();
    const QString &editedText() const { return m_editedText; }
    QString wordsText() const;
    QString readingTimeText() const;
    QString countsText() const { return described(m_counts); }
    QString selectedWordsText() const;
    QString selectedCountsText() const { return described(m_selectedCounts); }
    PageSelection *selection() const { return m_selection; }
    void setSelection(PageSelection *selection);
    const QString &selectedText() const { return m_selectedText; }
    void setSelectedText(const QString &text);

    QString backText() const;
    /// Goes to where pages of this kind are listed.
    Q_INVOKABLE void goBack();
    /// Goes back and deletes the page.
    Q_INVOKABLE void deletePage();

signals:
    void pageIDChanged();
    void titleChanged();
    /// A text that was written or pasted into the title was too long for it.
    void titleCut(const QString &message);
    /// A step was undone or redone in the title, where the caret belongs to this place now.
    void titleRestored(int caret);
    void iconChanged();
    void isFavoriteChanged();
    void kindChanged();
    void editedTextChanged();
    void countsChanged();
    void selectedCountsChanged();
    void selectionChanged();
    void selectedTextChanged();

protected:
    void refresh(const ChangeSet &changes) override;
    bool reveal(const UndoPlace &place) override;

private:
    /// What the header shows of the page itself.
    struct Face {
        QString title;
        QString icon;
        PageKind kind = PageKind::page;
        bool isFavorite = false;
    };

    const Page *page() const { return session() ? store().pages().first(m_pageID) : nullptr; }
    Destination::Kind backPlace() const;
    void showFace(const Page &page);
    void count();
    void countSelected();
    static QString described(const PageText::Counts &counts);

    QUuid m_pageID;
    Face m_face;
    QString m_editedText;
    QTimer m_countTimer;
    QTimer m_selectionTimer;
    PageText::Counts m_counts;
    PageText::Counts m_selectedCounts;
    QPointer<PageSelection> m_selection;
    QString m_selectedText;
};
