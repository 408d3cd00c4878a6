#pragma once

#include "Features/Databases/CsvExport.h"
#include "Features/Databases/CsvReader.h"
#include "Foundation/KeyedListModel.h"
#include "Models/DBRow.h"
#include "Session/FilePortal.h"
#include "Session/SaveFileDialog.h"
#include "Session/ViewModel.h"

#include <atomic>
#include <memory>
#include <thread>

/// A column of a file that is imported, as its preview shows it.
struct CsvColumnRow {
    Q_GADGET
    Q_PROPERTY(int column MEMBER id FINAL)
    Q_PROPERTY(QString name MEMBER name FINAL)
    /// Raw text of the `DBPropertyType`.
    Q_PROPERTY(QString type MEMBER type FINAL)
    Q_PROPERTY(QString typeLabel MEMBER typeLabel FINAL)
    /// The first values.
    Q_PROPERTY(QString sample MEMBER sample FINAL)

public:
    int id = 0;
    QString name;
    QString type;
    QString typeLabel;
    QString sample;

    bool operator==(const CsvColumnRow &) const = default;
};

/// Takes files of comma-separated values in and writes them out. A file is read and made into records beside
/// the window; nothing is added before that is done, and nothing at all if it is cancelled. Writing goes on
/// beside the window as well.
class CsvTransfer : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY stateChanged FINAL)
    /// Whether a file has been read and its columns can be chosen.
    Q_PROPERTY(bool isRead READ isRead NOTIFY stateChanged FINAL)
    /// Whether that is the writing of a file.
    Q_PROPERTY(bool isExporting READ isExporting NOTIFY stateChanged FINAL)
    /// From 0 to 1.
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged FINAL)
    /// What went wrong; empty for nothing.
    Q_PROPERTY(QString error READ error NOTIFY stateChanged FINAL)
    Q_PROPERTY(QString summary READ summary NOTIFY stateChanged FINAL)
    /// `CsvColumnRow`s.
    Q_PROPERTY(QAbstractItemModel *columns READ columns CONSTANT FINAL)

public:
    explicit CsvTransfer(QObject *parent = nullptr);
    ~CsvTransfer() override;

    bool isBusy() const { return m_isBusy; }
    bool isExporting() const { return m_isBusy && m_isExporting; }
    bool isRead() const { return !m_isBusy && m_table && !m_table->names.isEmpty(); }
    double progress() const { return m_progress; }
    const QString &error() const { return m_error; }
    QString summary() const;
    QAbstractItemModel *columns() { return &m_columns; }

    /// Lets the user choose the file to read in the dialog of the desktop.
    Q_INVOKABLE void choose();
    /// Begins to read a file.
    /// @param place a path or the address of a file
    Q_INVOKABLE void read(const QString &place);
    Q_INVOKABLE void cancel();
    Q_INVOKABLE void setType(int column, const QString &type);
    /// Makes a database of what was read, named after the file.
    Q_INVOKABLE void createDatabase();
    /// Adds what was read to a database, in the properties that are named like the columns.
    Q_INVOKABLE void addTo(const QUuid &tableID);
    /// How many columns of the file have a property of their name in the database.
    Q_INVOKABLE int matchCount(const QUuid &tableID) const;

    /// Write the records that a view of a database shows, or all of them, to a file that the user names.
    Q_INVOKABLE void saveView(const QUuid &tableID, const QUuid &viewID);
    Q_INVOKABLE void saveAll(const QUuid &tableID) { saveView(tableID, {}); }

signals:
    void stateChanged();
    void progressChanged();
    /// The records are there; the null id if there were none to make.
    void finished(const QUuid &tableID);
    /// What is to be told of a file that was written, or could not be.
    void saved(const QString &message);

protected:
    void refresh(const ChangeSet &) override {}

private:
    struct Job;

    void run(std::function<std::function<void()>(Job &)> work);
    void showColumns();
    void write(const CsvExport::Source &source, const QString &path);
    void makeRecords(const DatabaseTable &table, const QList<qsizetype> &propertyOf, bool isNew);

    bool m_isBusy = false;
    bool m_isExporting = false;
    double m_progress = 0;
    QString m_error;
    QString m_name;
    std::shared_ptr<const CsvTable> m_table;
    QList<DBProperty> m_properties;
    KeyedListModel<CsvColumnRow> m_columns;
    std::shared_ptr<Job> m_job;
    std::thread m_worker;
    SaveFileDialog m_dialog;
    FilePortal m_portal;
};
