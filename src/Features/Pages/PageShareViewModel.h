#pragma once

#include "Session/SaveFileDialog.h"
#include "Session/ViewModel.h"

#include <QUrl>

/// What the copy and the share menu of a page do.
class PageShareViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QUuid pageID MEMBER m_pageID REQUIRED FINAL)

public:
    /// What the machine does for the program.
    struct Desktop {
        /// Opens a file or a link in the program made for it; false if there is none.
        std::function<bool(const QUrl &)> open;
        std::function<void(const QString &fileName, SaveFileDialog::Receiver)> askForPlace;
        /// Where a folder for a file to be opened is made.
        QString temporaryFolder;
    };

    explicit PageShareViewModel(QObject *parent = nullptr);

    void setDesktop(Desktop desktop) { m_desktop = std::move(desktop); }

    Q_INVOKABLE void copyMarkdown();
    Q_INVOKABLE void copyPlainText();
    /// Saves the page as a Markdown file in a place that the user chooses.
    Q_INVOKABLE void save();
    /// Shows the page in the program that opens Markdown files. It works on a copy that cannot be written
    /// and is removed when this program ends.
    Q_INVOKABLE void open();
    Q_INVOKABLE void mail();

signals:
    /// A sentence on how it went.
    void message(const QString &text);

protected:
    void refresh(const ChangeSet &) override {}

private:
    const Page *page() const { return store().pages().first(m_pageID); }
    void saveTo(const QUuid &pageID, const SaveFileDialog::Answer &place);

    QUuid m_pageID;
    Desktop m_desktop;
};
