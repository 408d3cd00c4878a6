#pragma once

#include "Features/Decks/DeckExporter.h"
#include "Foundation/Choice.h"
#include "Session/SaveFileDialog.h"
#include "Session/ViewModel.h"

#include <QTimer>

/// Exports the open deck in the background: makes the file, asks where it is to go, and writes it there.
class DeckExportViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QVariant deckID READ deckVariant WRITE setDeckVariant NOTIFY deckIDChanged FINAL)
    Q_PROPERTY(QList<Choice> formats READ formats CONSTANT FINAL)
    /// From the start until the file is written or nothing will be.
    Q_PROPERTY(bool exporting READ isExporting NOTIFY exportingChanged FINAL)
    /// Whether the file is still being made, which takes time and can be cancelled.
    Q_PROPERTY(bool making READ isMaking NOTIFY exportingChanged FINAL)
    /// Of the file being made, from 0 to 1.
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged FINAL)

public:
    using AskForPlace = std::function<void(const QString &fileName, SaveFileDialog::Receiver)>;

    explicit DeckExportViewModel(QObject *parent = nullptr);
    /// Stops an export that is under way.
    ~DeckExportViewModel() override;

    void setAskForPlace(AskForPlace ask) { m_askForPlace = std::move(ask); }

    QVariant deckVariant() const { return m_deckID; }
    void setDeckVariant(const QVariant &id);
    static QList<Choice> formats() { return Choice::all<DeckExportFormat>(); }
    bool isExporting() const { return m_isExporting; }
    bool isMaking() const { return m_making != nullptr; }
    double progress() const { return m_progress; }

    /// Does nothing while another export is under way.
    /// @param format raw text
    Q_INVOKABLE void exportAs(const QString &format);
    Q_INVOKABLE void cancel();
    Q_INVOKABLE void copyOutline();

signals:
    void deckIDChanged();
    void exportingChanged();
    void progressChanged();
    /// A sentence on what was done.
    void done(const QString &message);
    /// The sentence on why it could not be done.
    void failed(const QString &message);

protected:
    void refresh(const ChangeSet &) override {}

private:
    using Made = std::expected<QByteArray, DeckExportError>;

    const Deck *deck() const { return store().list<Deck>().first(m_deckID); }
    void made(const Made &data, const QString &fileName, DeckExportFormat format);
    void write(const QByteArray &data, DeckExportFormat format, const SaveFileDialog::Answer &place);
    void finish();
    void showProgress();

    QUuid m_deckID;
    AskForPlace m_askForPlace;
    bool m_isExporting = false;
    /// Shared with the thread that makes the file; null while none does.
    std::shared_ptr<DeckExportProgress> m_making;
    int m_slideCount = 0;
    double m_progress = 0;
    QTimer m_watch;
};
