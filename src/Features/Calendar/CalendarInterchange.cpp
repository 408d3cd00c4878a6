#include "Features/Calendar/CalendarInterchange.h"

#include "Features/Calendar/ICalendarWriter.h"
#include "Foundation/AtomicFile.h"
#include "Store/EventOperations.h"

#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QStandardPaths>
#include <QThreadPool>

CalendarInterchange::CalendarInterchange(QObject *parent) : ViewModel(parent)
{
    follow<CalendarEvent>();
    auto *const files = new FilePortal(QDBusConnection::sessionBus(), this);
    auto *const places =
        new SaveFileDialog(QDBusConnection::sessionBus(),
                           QStandardPaths::writableLocation(QStandardPaths::DownloadLocation), this);
    m_desktop = {[files](FilePortal::Receiver receiver) {
                     files->ask(QStringLiteral("OpenFile"), tr("Import calendar"), {}, std::move(receiver));
                 },
                 [places](const QString &fileName, SaveFileDialog::Receiver receiver) {
                     places->ask(fileName, std::move(receiver));
                 }};
}

CalendarInterchange::~CalendarInterchange()
{
    m_reading.request_stop();
}

void CalendarInterchange::chooseFile()
{
    m_desktop.askForFile([this](const std::expected<QString, FilePortal::NoFile> &path) {
        if (path)
            open({QUrl::fromLocalFile(*path)});
        else if (path.error() == FilePortal::NoFile::noPortal)
            tell(tr("This desktop has no dialog to choose a file. Drop the file on the calendar instead."));
    });
}

void CalendarInterchange::open(const QList<QUrl> &files)
{
    if (files.size() != 1 || !files.first().isLocalFile()) {
        tell(tr("Drop one calendar file at a time."));
        return;
    }
    m_reading.request_stop();
    m_reading = std::stop_source();
    const QString path = files.first().toLocalFile();
    const ICalendarReader::Options options{
        .zone = clock().timeZone(), .now = clock().now(), .stop = m_reading.get_token()};
    QThreadPool::globalInstance()->start([path, options, self = QPointer(this)] {
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [self, path, stop = options.stop, contents = ICalendarReader::readFile(path, options)] {
                if (self && !stop.stop_requested())
                    self->take(QFileInfo(path).fileName(), contents);
            },
            Qt::QueuedConnection);
    });
}

void CalendarInterchange::take(const QString &fileName, Contents contents)
{
    if (!contents) {
        tell(contents.error());
        return;
    }
    m_fileName = fileName;
    m_contents = *std::move(contents);
    requestRefresh();
    flush();
    emit opened();
}

void CalendarInterchange::refresh(const ChangeSet &)
{
    m_knownCount =
        int(std::ranges::count_if(m_contents.events, [this](const auto &event) { return isKnown(event); }));
    emit previewChanged();
}

void CalendarInterchange::addEvents()
{
    QList<CalendarEvent> events = std::exchange(m_contents, {}).events;
    events.removeIf([this](const CalendarEvent &event) { return isKnown(event); });
    EventOperations::addAll(store(), events);
}

void CalendarInterchange::save()
{
    m_desktop.askForPlace(QStringLiteral("Calendar.ics"),
                          [this](const std::optional<SaveFileDialog::Answer> &place) {
                              if (place)
                                  saveTo(*place);
                          });
}

void CalendarInterchange::saveTo(const SaveFileDialog::Answer &place)
{
    const auto write = [path = place.path, events = store().list<CalendarEvent>().all(),
                        tasks = store().tasks().all(), zone = clock().timeZone(), now = clock().now()] {
        return AtomicFile::write(path, ICalendarWriter::write(events, tasks, zone, now),
                                 AtomicFile::Access::umask);
    };
    // The user may leave the calendar meanwhile, and is told all the same.
    QThreadPool::globalInstance()->start([place, write, session = QPointer(session())] {
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [place, session, written = write()] {
                if (session)
                    session->undo()->tell(savedText(place, written));
            },
            Qt::QueuedConnection);
    });
}

QString CalendarInterchange::savedText(const SaveFileDialog::Answer &place,
                                       const std::expected<void, QString> &written)
{
    const QFileInfo file(place.path);
    if (!written)
        return tr("The calendar could not be saved: %1").arg(written.error());
    if (place.wasAsked)
        return tr("Saved as “%1”.").arg(file.fileName());
    return tr("Saved in “%1” as “%2”.").arg(file.dir().dirName(), file.fileName());
}
