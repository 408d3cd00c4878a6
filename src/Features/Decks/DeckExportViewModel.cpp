#include "Features/Decks/DeckExportViewModel.h"

#include "Features/Decks/DeckOutline.h"
#include "Foundation/AtomicFile.h"

#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPointer>
#include <QStandardPaths>
#include <QThreadPool>

using namespace std::chrono_literals;

DeckExportViewModel::DeckExportViewModel(QObject *parent) : ViewModel(parent)
{
    auto *const dialog =
        new SaveFileDialog(QDBusConnection::sessionBus(),
                           QStandardPaths::writableLocation(QStandardPaths::DownloadLocation), this);
    m_askForPlace = [dialog](const QString &fileName, SaveFileDialog::Receiver receiver) {
        dialog->ask(fileName, std::move(receiver));
    };
    m_watch.setInterval(50ms);
    connect(&m_watch, &QTimer::timeout, this, &DeckExportViewModel::showProgress);
}

DeckExportViewModel::~DeckExportViewModel()
{
    if (m_making)
        m_making->isCancelled = true;
}

void DeckExportViewModel::setDeckVariant(const QVariant &id)
{
    if (std::exchange(m_deckID, id.toUuid()) != id.toUuid())
        emit deckIDChanged();
}

void DeckExportViewModel::exportAs(const QString &format)
{
    const auto known = enumFromRaw<DeckExportFormat>(format);
    const Deck *const wanted = deck();
    if (!known || !wanted || m_isExporting)
        return;
    m_isExporting = true;
    m_making = std::make_shared<DeckExportProgress>();
    m_slideCount = int(wanted->slides.size());
    m_progress = 0;
    m_watch.start();
    emit progressChanged();
    emit exportingChanged();
    // The deck is copied: what is changed meanwhile does not reach this export.
    QThreadPool::globalInstance()->start(
        [deck = *wanted, format = *known, making = m_making, now = session()->now(), self = QPointer(this)] {
            auto data = DeckExporter::make(deck, format, now, making.get());
            QMetaObject::invokeMethod(
                QCoreApplication::instance(),
                [self, making, format, data = std::move(data), name = DeckExporter::fileName(deck, format)] {
                    if (self && self->m_making == making)
                        self->made(data, name, format);
                },
                Qt::QueuedConnection);
        });
}

void DeckExportViewModel::cancel()
{
    if (!m_making)
        return;
    m_making->isCancelled = true;
    finish();
}

void DeckExportViewModel::made(const Made &data, const QString &fileName, DeckExportFormat format)
{
    if (!data) {
        finish();
        emit failed(enumLabel(data.error()));
        return;
    }
    m_making.reset();
    m_watch.stop();
    emit exportingChanged();
    m_askForPlace(fileName,
                  [this, format, bytes = *data](const std::optional<SaveFileDialog::Answer> &place) {
                      finish();
                      if (place)
                          write(bytes, format, *place);
                  });
}

void DeckExportViewModel::write(const QByteArray &data, DeckExportFormat format,
                                const SaveFileDialog::Answer &place)
{
    if (const auto written = AtomicFile::write(place.path, data, AtomicFile::Access::umask); !written)
        emit failed(tr("The file could not be saved: %1").arg(written.error()));
    else if (place.wasAsked)
        emit done(tr("Exported %1").arg(DeckExporter::fileExtension(format).toUpper()));
    else
        emit done(
            tr("Exported %1 to “%2”")
                .arg(DeckExporter::fileExtension(format).toUpper(), QFileInfo(place.path).dir().dirName()));
}

void DeckExportViewModel::finish()
{
    m_isExporting = false;
    m_making.reset();
    m_watch.stop();
    emit exportingChanged();
}

void DeckExportViewModel::showProgress()
{
    const double progress = m_making && m_slideCount > 0 ? double(m_making->slidesDone) / m_slideCount : 0;
    if (std::exchange(m_progress, progress) != progress)
        emit progressChanged();
}

void DeckExportViewModel::copyOutline()
{
    const Deck *const wanted = deck();
    if (!wanted)
        return;
    QGuiApplication::clipboard()->setText(DeckOutline::markdown(*wanted));
    emit done(tr("Outline copied"));
}
