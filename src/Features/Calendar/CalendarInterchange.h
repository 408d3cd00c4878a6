#pragma once

#include "Features/Calendar/ICalendarReader.h"
#include "Session/SaveFileDialog.h"
#include "Session/ViewModel.h"

#include <QUrl>

#include <stop_token>

/// Events from calendar files and into them. A file that was read is shown before anything of it is added.
class CalendarInterchange : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString fileName READ fileName NOTIFY previewChanged FINAL)
    /// Events of the file that the workspace has not, and has already.
    Q_PROPERTY(int newCount READ newCount NOTIFY previewChanged FINAL)
    Q_PROPERTY(int knownCount READ knownCount NOTIFY previewChanged FINAL)
    /// Events that repeat, and the single ones that come from them.
    Q_PROPERTY(int seriesCount READ seriesCount NOTIFY previewChanged FINAL)
    Q_PROPERTY(int occurrenceCount READ occurrenceCount NOTIFY previewChanged FINAL)
    /// A sentence for each thing that is not kept.
    Q_PROPERTY(QStringList losses READ losses NOTIFY previewChanged FINAL)

public:
    /// What the machine does for the program.
    struct Desktop {
        std::function<void(FilePortal::Receiver)> askForFile;
        std::function<void(const QString &fileName, SaveFileDialog::Receiver)> askForPlace;
    };

    explicit CalendarInterchange(QObject *parent = nullptr);
    ~CalendarInterchange() override;

    void setDesktop(Desktop desktop) { m_desktop = std::move(desktop); }

    const QString &fileName() const { return m_fileName; }
    int newCount() const { return int(m_contents.events.size()) - m_knownCount; }
    int knownCount() const { return m_knownCount; }
    int seriesCount() const { return int(m_contents.series); }
    int occurrenceCount() const { return int(m_contents.occurrences); }
    const QStringList &losses() const { return m_contents.losses; }

    /// Lets the user choose a file and reads it.
    Q_INVOKABLE void chooseFile();
    /// Reads the one file of these; `opened` follows, or a message of the window that says why not.
    Q_INVOKABLE void open(const QList<QUrl> &files);
    /// Adds the new events in one step.
    Q_INVOKABLE void addEvents();
    /// Saves all events, and the tasks with due dates, in a place that the user chooses.
    Q_INVOKABLE void save();

signals:
    /// A file was read and can be looked at.
    void opened();
    void previewChanged();

protected:
    void refresh(const ChangeSet &changes) override;

private:
    using Contents = std::expected<ICalendarContents, QString>;

    void take(const QString &fileName, Contents contents);
    void tell(const QString &text) const { session()->undo()->tell(text); }
    void saveTo(const SaveFileDialog::Answer &place);
    static QString savedText(const SaveFileDialog::Answer &place,
                             const std::expected<void, QString> &written);
    bool isKnown(const CalendarEvent &event) const
    {
        return store().list<CalendarEvent>().first(event.id) != nullptr;
    }

    Desktop m_desktop;
    QString m_fileName;
    ICalendarContents m_contents;
    int m_knownCount = 0;
    /// Ends the reading of a file that nobody waits for any more.
    std::stop_source m_reading;
};
