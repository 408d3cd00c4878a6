#pragma once

#include "Features/Databases/CsvExport.h"
#include "Features/Databases/CsvRecords.h"
#include "Features/Databases/RecordsAdder.h"
#include "Foundation/KeyedListModel.h"
#include "Session/BackgroundWork.h"
#include "Session/FilePortal.h"
#include "Session/SaveFileDialog.h"
#include "Session/ViewModel.h"

#include <QPointer>

#include <memory>

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
/// the window; nothing is added before that is done, and what was added is taken back if it is cancelled.
/// Writing goes on beside the window as well, also after this is gone.
class CsvTransfer : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    /// Whether a file is being read, or its records are being made or added.
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY stateChanged FINAL)
    /// Whether a file has been read and its columns can be chosen.
    Q_PROPERTY(bool isRead READ isRead NOTIFY stateChanged FINAL)
    /// Whether a file is being written.
    Q_PROPERTY(bool isExporting READ isExporting NOTIFY stateChanged FINAL)
    /// From 0 to 1.
    Q_PROPERTY(double progress READ progress NOTIFY stateChanged FINAL)
    /// What went wrong; empty for nothing.
    Q_PROPERTY(QString error READ error NOTIFY stateChanged FINAL)
    Q_PROPERTY(QString summary READ summary NOTIFY stateChanged FINAL)
    /// `CsvColumnRow`s.
    Q_PROPERTY(QAbstractItemModel *columns READ columns CONSTANT FINAL)

public:
    explicit CsvTransfer(QObject *parent = nullptr);
    ~CsvTransfer() override;

    bool isBusy() const { return m_work.isBusy() || m_adder.isBusy(); }
    bool isExporting() const { return m_export && m_export->isBusy(); }
    bool isRead() const { return !isBusy() && m_file; }
    double progress() const;
    const QString &error() const { return m_error; }
    QString summary() const;
    QAbstractItemModel *columns() { return &m_columns; }

    /// Lets the user choose the file to read in the dialog of the desktop.
    Q_INVOKABLE void choose();
    /// Begins to read a file.
    /// @param place a path or the address of a file
    Q_INVOKABLE void read(const QString &place);
    Q_INVOKABLE void cancel();
    Q_INVOKABLE void cancelExport();
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
    /// The records are there.
    void finished(const QUuid &tableID);

protected:
    void refresh(const ChangeSet &) override {}

private:
    void showColumns();
    void write(const CsvExport::Source &source, const QString &path);
    void makeRecords(const DatabaseTable &table, const QList<qsizetype> &propertyOf, bool isNew);

    QString m_error;
    QString m_name;
    std::shared_ptr<const CsvTable> m_file;
    QList<DBProperty> m_properties;
    KeyedListModel<CsvColumnRow> m_columns;
    QUuid m_added;
    BackgroundWork m_work;
    RecordsAdder m_adder;
    /// Belongs to the session.
    QPointer<BackgroundWork> m_export;
    SaveFileDialog m_dialog;
    FilePortal m_portal;
};
