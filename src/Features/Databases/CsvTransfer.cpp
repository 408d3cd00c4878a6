#include "Features/Databases/CsvTransfer.h"

#include "Features/Databases/CsvColumns.h"
#include "Foundation/LineText.h"
#include "Store/DatabaseOperations.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUrl>

#include <utility>

/// What the worker and the window share.
struct CsvTransfer::Job {
    std::atomic<bool> isCanceled = false;
    std::atomic<int> percent = 0;
    /// Tells the window; called by the worker.
    std::function<void()> advanced;

    bool goOn(double share)
    {
        const int next = int(share * 100);
        if (percent.exchange(next) != next)
            advanced();
        return !isCanceled;
    }
};

CsvTransfer::CsvTransfer(QObject *parent)
    : ViewModel(parent),
      m_dialog(QDBusConnection::sessionBus(),
               QStandardPaths::writableLocation(QStandardPaths::DownloadLocation)),
      m_portal(QDBusConnection::sessionBus())
{
}

CsvTransfer::~CsvTransfer()
{
    if (m_job)
        m_job->isCanceled = true;
    if (m_worker.joinable())
        m_worker.join();
}

void CsvTransfer::run(std::function<std::function<void()>(Job &)> work)
{
    cancel();
    if (m_worker.joinable())
        m_worker.join();
    m_isBusy = true;
    m_isExporting = false;
    m_progress = 0;
    m_error.clear();
    auto job = std::make_shared<Job>();
    job->advanced = [this, job = job.get()] {
        QMetaObject::invokeMethod(this, [this, percent = job->percent.load()] {
            m_progress = percent / 100.0;
            emit progressChanged();
        });
    };
    m_job = job;
    m_worker = std::thread([this, job, work = std::move(work)] {
        const std::function<void()> done = work(*job);
        QMetaObject::invokeMethod(this, [this, job, done] {
            if (job->isCanceled || m_job != job)
                return;
            m_isBusy = false;
            done();
            emit stateChanged();
        });
    });
    emit stateChanged();
}

void CsvTransfer::cancel()
{
    if (!m_isBusy)
        return;
    m_job->isCanceled = true;
    m_isBusy = false;
    emit stateChanged();
}

void CsvTransfer::choose()
{
    m_portal.ask(QStringLiteral("OpenFile"), tr("Import CSV"), {},
                 [this](const std::expected<QString, FilePortal::NoFile> &path) {
                     if (path)
                         return read(*path);
                     if (path.error() == FilePortal::NoFile::cancelled)
                         return;
                     m_error =
                         tr("This desktop has no file dialog. Type the path of the file, or drop it here.");
                     emit stateChanged();
                 });
}

void CsvTransfer::read(const QString &place)
{
    const QUrl url(place);
    const QString path = url.isLocalFile() ? url.toLocalFile() : place.trimmed();
    m_table.reset();
    m_name = QFileInfo(path).completeBaseName();
    run([this, path](Job &job) -> std::function<void()> {
        QFile file(path);
        const auto fail = [this](const QString &message) { return [this, message] { m_error = message; }; };
        // A pipe or a device may have no end.
        if (QFileInfo::exists(path) && !QFileInfo(path).isFile())
            return fail(tr("“%1” is not a file.").arg(path));
        if (!file.open(QIODevice::ReadOnly))
            return fail(tr("“%1” could not be opened: %2.").arg(path, file.errorString()));
        auto table = CsvReader::read(file.readAll(), [&job](double share) { return job.goOn(share * 0.9); });
        if (!table)
            return fail(table.error());
        const auto shared = std::make_shared<const CsvTable>(std::move(*table));
        const QList<DBProperty> properties = CsvColumns::guess(*shared);
        return [this, shared, properties] {
            m_table = shared;
            m_properties = properties;
            showColumns();
        };
    });
}

QString CsvTransfer::summary() const
{
    if (!isRead())
        return {};
    const QString counts = tr("%1 records, %2 columns").arg(m_table->rows.size()).arg(m_table->names.size());
    return m_table->ragged == 0
               ? counts
               : tr("%1; %2 rows are longer or shorter than the first one").arg(counts).arg(m_table->ragged);
}

void CsvTransfer::showColumns()
{
    QList<CsvColumnRow> rows;
    for (qsizetype i = 0; i < m_properties.size(); ++i) {
        QStringList sample;
        for (qsizetype j = 0; j < std::min<qsizetype>(3, m_table->rows.size()); ++j)
            if (const QString text = LineText::shown(m_table->rows.at(j).at(i), 40); !text.isEmpty())
                sample.append(text);
        const DBProperty &property = m_properties.at(i);
        rows.append({int(i), LineText::shownTitle(property.name), enumRawText(property.type),
                     enumLabel(property.type), sample.join(QStringLiteral(", "))});
    }
    m_columns.setRows(std::move(rows));
}

void CsvTransfer::setType(int column, const QString &type)
{
    const auto value = enumFromRaw<DBPropertyType>(type);
    if (!value || !isRead() || column < 0 || column >= m_properties.size())
        return;
    m_properties[column] = CsvColumns::withType(m_properties.at(column), *value, *m_table, column);
    showColumns();
}

void CsvTransfer::createDatabase()
{
    if (!isRead())
        return;
    DatabaseTable table;
    table.id = store().makeId();
    table.name = m_name;
    table.properties = m_properties;
    QList<qsizetype> propertyOf;
    for (DBProperty &property : table.properties) {
        property.id = store().makeId();
        propertyOf.append(propertyOf.size());
    }
    table.views = {DBView{.id = store().makeId()}};
    table.createdDate = table.updatedDate = store().now();
    table.sortOrder = secondsSince1970(table.createdDate);
    makeRecords(table, propertyOf, true);
}

int CsvTransfer::matchCount(const QUuid &tableID) const
{
    const DatabaseTable *const table = session() ? store().list<DatabaseTable>().first(tableID) : nullptr;
    if (!table || !isRead())
        return 0;
    const auto matches = CsvColumns::match(m_table->names, table->properties);
    return int(std::ranges::count_if(matches, [](qsizetype property) { return property >= 0; }));
}

void CsvTransfer::addTo(const QUuid &tableID)
{
    const DatabaseTable *const table = store().list<DatabaseTable>().first(tableID);
    if (table && matchCount(tableID) > 0)
        makeRecords(*table, CsvColumns::match(m_table->names, table->properties), false);
}

void CsvTransfer::makeRecords(const DatabaseTable &table, const QList<qsizetype> &propertyOf, bool isNew)
{
    const Timestamp now = store().now();
    run([this, table, propertyOf, isNew, now, source = m_table](Job &job) -> std::function<void()> {
        std::vector<std::pair<QString, CsvColumns::Converter>> converters;
        QList<qsizetype> columns;
        for (qsizetype i = 0; i < propertyOf.size(); ++i) {
            if (propertyOf.at(i) < 0)
                continue;
            const DBProperty &property = table.properties.at(propertyOf.at(i));
            converters.emplace_back(DBRow::valueKey(property.id),
                                    CsvColumns::Converter(property, *source, i));
            columns.append(i);
        }
        const auto records = std::make_shared<QList<DBRow>>();
        for (qsizetype row = 0; row < source->rows.size(); ++row) {
            if (row % 1000 == 0 && !job.goOn(double(row) / double(source->rows.size())))
                return {};
            DBRow record{QUuid(), table.id, {}, secondsSince1970(now), now, now};
            for (qsizetype i = 0; i < columns.size(); ++i) {
                const auto &[key, converter] = converters[std::size_t(i)];
                if (const QString value = converter.value(source->rows.at(row).at(columns.at(i)));
                    !value.isEmpty())
                    record.values.insert(key, value);
            }
            records->append(std::move(record));
        }
        return [this, table, records, isNew] {
            const Action action(store(), ActionText::tr("Import"));
            if (isNew)
                DatabaseOperations::create(store(), table);
            for (DBRow &record : *records) {
                record.id = store().makeId();
                store().add(record);
            }
            m_table.reset();
            emit finished(table.id);
        };
    });
}

void CsvTransfer::saveView(const QUuid &tableID, const QUuid &viewID)
{
    const DatabaseTable *const table = store().list<DatabaseTable>().first(tableID);
    if (!table)
        return;
    CsvExport::Source source{table->properties, {}, {}, clock().timeZone(), QLocale()};
    for (const DBRow *const record : DatabaseOperations::rows(store(), tableID))
        source.records.append(*record);
    const auto view = std::ranges::find(table->views, viewID, &DBView::id);
    if (view != table->views.end())
        source.view = *view;
    const QString fileName = LineText::shownTitle(table->name).replace(u'/', u'-') + QStringLiteral(".csv");
    m_dialog.ask(fileName, [this, source](const std::optional<SaveFileDialog::Answer> &place) {
        if (place)
            write(source, place->path);
    });
}

void CsvTransfer::write(const CsvExport::Source &source, const QString &path)
{
    run([this, source, path](Job &job) -> std::function<void()> {
        const auto result = CsvExport::write(source, path, [&job](double share) { return job.goOn(share); });
        const QString message = result ? tr("Saved to %1").arg(path) : result.error();
        return [this, message] { emit saved(message); };
    });
    m_isExporting = true;
    emit stateChanged();
}
