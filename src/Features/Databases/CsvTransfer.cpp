#include "Features/Databases/CsvTransfer.h"

#include "Features/Databases/CsvColumns.h"
#include "Foundation/LineText.h"
#include "Store/DatabaseOperations.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUrl>

#include <utility>

namespace
{
/// The share of making the records in the time of an import; the other is adding them.
constexpr double makingShare = 0.6;
} // namespace

CsvTransfer::CsvTransfer(QObject *parent)
    : ViewModel(parent),
      m_dialog(QDBusConnection::sessionBus(),
               QStandardPaths::writableLocation(QStandardPaths::DownloadLocation)),
      m_portal(QDBusConnection::sessionBus())
{
    connect(&m_work, &BackgroundWork::changed, this, &CsvTransfer::stateChanged);
    connect(&m_adder, &RecordsAdder::advanced, this, &CsvTransfer::stateChanged);
    connect(&m_adder, &RecordsAdder::finished, this, [this] {
        m_file.reset();
        emit stateChanged();
        emit finished(m_added);
    });
}

CsvTransfer::~CsvTransfer()
{
    if (isExporting())
        session()->undo()->tell(tr("The CSV file is still being written."));
}

double CsvTransfer::progress() const
{
    if (isExporting())
        return m_export->progress();
    return m_adder.isBusy() ? makingShare + (1 - makingShare) * m_adder.progress() : m_work.progress();
}

void CsvTransfer::cancel()
{
    m_work.cancel();
    m_adder.cancel();
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
    m_file.reset();
    m_error.clear();
    m_name = QFileInfo(path).completeBaseName();
    m_work.start([this, path](BackgroundWork::Job &job) -> std::function<void()> {
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
            m_file = shared;
            m_properties = properties;
            showColumns();
        };
    });
}

QString CsvTransfer::summary() const
{
    if (!isRead())
        return {};
    const QString counts = tr("%1 records, %2 columns").arg(m_file->rowCount()).arg(m_file->columnCount());
    return m_file->ragged == 0
               ? counts
               : tr("%1; %2 rows are longer or shorter than the first one").arg(counts).arg(m_file->ragged);
}

void CsvTransfer::showColumns()
{
    QList<CsvColumnRow> rows;
    for (qsizetype i = 0; i < m_properties.size(); ++i) {
        QStringList sample;
        for (qsizetype j = 0; j < std::min<qsizetype>(3, m_file->rowCount()); ++j)
            if (const QString text = LineText::shown(m_file->text(j, i), 40); !text.isEmpty())
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
    m_properties[column] = CsvColumns::withType(m_properties.at(column), *value, *m_file, column);
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
    const auto matches = CsvColumns::match(m_file->names, table->properties);
    return int(std::ranges::count_if(matches, [](qsizetype property) { return property >= 0; }));
}

void CsvTransfer::addTo(const QUuid &tableID)
{
    const DatabaseTable *const table = store().list<DatabaseTable>().first(tableID);
    if (table && matchCount(tableID) > 0)
        makeRecords(*table, CsvColumns::match(m_file->names, table->properties), false);
}

void CsvTransfer::makeRecords(const DatabaseTable &table, const QList<qsizetype> &propertyOf, bool isNew)
{
    const CsvRecords::Plan plan{table, propertyOf, store().now(), QLocale()};
    m_work.start([this, plan, isNew, file = m_file](BackgroundWork::Job &job) -> std::function<void()> {
        auto made =
            CsvRecords::make(*file, plan, [&job](double share) { return job.goOn(share * makingShare); });
        if (!made)
            return {};
        const auto records = std::make_shared<QList<DBRow>>(std::move(*made));
        return [this, table = plan.table, records, isNew] {
            m_added = table.id;
            m_adder.start(store(), isNew ? std::optional(table) : std::nullopt, std::move(*records));
        };
    });
}

void CsvTransfer::saveView(const QUuid &tableID, const QUuid &viewID)
{
    const DatabaseTable *const table = store().list<DatabaseTable>().first(tableID);
    if (!table)
        return;
    CsvExport::Source source{tableID, table->properties,  store().list<DBRow>().all(),
                             {},      clock().timeZone(), QLocale()};
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
    auto *const work = new BackgroundWork(session());
    m_export = work;
    connect(work, &BackgroundWork::changed, this, &CsvTransfer::stateChanged);
    work->start([work, source, path, tells = session()->undo()](BackgroundWork::Job &job) {
        const auto result = CsvExport::write(source, path, [&job](double share) { return job.goOn(share); });
        const QString message = result ? tr("Saved to %1").arg(path) : result.error();
        return [work, tells, message] {
            tells->tell(message);
            work->deleteLater();
        };
    });
}

void CsvTransfer::cancelExport()
{
    if (!isExporting())
        return;
    m_export->cancel();
    m_export->deleteLater();
}
