#include "state/DatabaseTwins.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QStringList>
#include <QVariant>

#include <stdexcept>

namespace KVCAM::Embedded {
namespace {

// A separate name: the default connection belongs to the host.
QString connectionName()
{
    return QStringLiteral("kvcam-embedded-engine");
}

QSqlDatabase connection()
{
    return QSqlDatabase::database(connectionName(), false);
}

constexpr long long largestSequence = 1LL << 62;

constexpr char const * tables[] = {
    "CREATE TABLE IF NOT EXISTS show_para (sequence INTEGER PRIMARY KEY, unit INTEGER, width INTEGER,"
    " negative INTEGER, textax INTEGER, profile INTEGER)",
    "CREATE TABLE IF NOT EXISTS selection (sequence INTEGER PRIMARY KEY, \"select\" INTEGER, clear INTEGER,"
    " display INTEGER, operation INTEGER, location INTEGER, touching INTEGER)",
    "CREATE TABLE IF NOT EXISTS select_param (sequence INTEGER PRIMARY KEY, selected_para INTEGER)",
    "CREATE TABLE IF NOT EXISTS undo_call (sequence INTEGER PRIMARY KEY, call TEXT, job TEXT, step TEXT,"
    " size INTEGER)",
    "CREATE TABLE IF NOT EXISTS operation (sequence INTEGER PRIMARY KEY, job TEXT, step TEXT, layer TEXT,"
    " features TEXT)",
};

QString text(std::string const & value)
{
    return QString::fromStdString(value);
}

} // namespace

void DatabaseTwins::fail(QString const & reason) const
{
    throw std::runtime_error(message(reason));
}

std::string DatabaseTwins::message(QString const & reason) const
{
    return (m_file + ": " + reason.trimmed()).toStdString();
}

void DatabaseTwins::open(std::string const & file)
{
    close();
    if (file.empty()) {
        throw std::runtime_error("the database file has no name"); // SQLite would create a file of its own
    }
    m_file = QFileInfo(QString::fromStdString(file)).absoluteFilePath();
    if (QCoreApplication::instance() == nullptr) {
        fail("the database needs a running application object");
    }
    if (!QSqlDatabase::isDriverAvailable("QSQLITE")) {
        fail("Qt's SQLite driver is not installed");
    }
    {
        QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", connectionName());
        database.setDatabaseName(m_file);
        m_open = database.open();
    }
    try {
        if (!m_open) {
            fail(connection().lastError().text());
        }
        for (char const * const table : tables) {
            run(table);
        }
        addSymbolColumn();
    } catch (...) {
        close();
        throw;
    }
}

void DatabaseTwins::close()
{
    m_open = false;
    if (QSqlDatabase::contains(connectionName())) {
        connection().close();
        QSqlDatabase::removeDatabase(connectionName());
    }
}

void DatabaseTwins::run(char const * sql, QVariantList const & values)
{
    QSqlQuery query(connection());
    bool done = query.prepare(QString::fromLatin1(sql));
    if (done) {
        for (QVariant const & value : values) {
            query.addBindValue(value);
        }
        done = query.exec();
    }
    if (!done) {
        constexpr int constraint = 19; // SQLite's code; extended codes keep it in the low byte
        QSqlError const error = query.lastError();
        if ((error.nativeErrorCode().toInt() & 0xFF) == constraint) {
            throw SequenceTaken(message(error.text()));
        }
        fail(error.text());
    }
}

// Files of earlier versions have deletions only.
void DatabaseTwins::addSymbolColumn()
{
    if (!connection().record(QStringLiteral("operation")).contains(QStringLiteral("symbol"))) {
        run("ALTER TABLE operation ADD COLUMN symbol TEXT NOT NULL DEFAULT ''");
    }
}

void DatabaseTwins::rollback() noexcept
{
    QSqlQuery query(connection());
    query.exec(QStringLiteral("ROLLBACK")); // no effect if the database has already rolled back
}

long long DatabaseTwins::highestSequence()
{
    QSqlQuery query(connection());
    QStringList parts;
    for (char const * const table : {"show_para", "selection", "select_param", "undo_call", "operation"}) {
        parts << QStringLiteral("SELECT max(sequence) AS s FROM ") + QString::fromLatin1(table);
    }
    if (!query.exec("SELECT CAST(max(s) AS INTEGER) FROM (" + parts.join(" UNION ALL ") + ')') ||
        !query.next()) {
        fail(query.lastError().text());
    }
    long long const highest = query.value(0).toLongLong();
    if (highest > largestSequence) {
        fail("the sequence numbers are used up");
    }
    return highest;
}

void DatabaseTwins::addShowPara(long long sequence, API::show_param const & value)
{
    run("INSERT INTO show_para VALUES (?, ?, ?, ?, ?, ?)",
        {sequence, value.unit, value.width, int(value.negative), int(value.textax), int(value.profile)});
}

void DatabaseTwins::addSelection(long long sequence, API::Selection const & value)
{
    run("INSERT INTO selection VALUES (?, ?, ?, ?, ?, ?, ?)",
        {sequence, int(value.select), int(value.clear), int(value.display), int(value.operation),
         int(value.location), int(value.touching)});
}

void DatabaseTwins::addSelectParam(long long sequence, API::select_info value)
{
    run("INSERT INTO select_param VALUES (?, ?)", {sequence, value.selected_para});
}

void DatabaseTwins::addUndoCall(long long sequence, char const * call, std::string const & job,
                                std::string const & step, int size)
{
    run("INSERT INTO undo_call VALUES (?, ?, ?, ?, ?)",
        {sequence, QString::fromLatin1(call), text(job), text(step), size});
}

void DatabaseTwins::addOperation(long long sequence, std::string const & job, std::string const & step,
                                 Operation const & operation)
{
    QStringList features;
    for (int const index : operation.features) {
        features << QString::number(index);
    }
    QString symbol(""); // with the unit of its sizes, as files mark it; never NULL
    if (!operation.isDeletion()) {
        symbol = text(operation.symbol.name) + (operation.symbol.unit == 1 ? " M" : " I");
    }
    run("INSERT INTO operation VALUES (?, ?, ?, ?, ?, ?)",
        {sequence, text(job), text(step), text(operation.layer), features.join(','), symbol});
}

void DatabaseTwins::removeLatestOperation(std::string const & job, std::string const & step)
{
    run("DELETE FROM operation WHERE sequence ="
        " (SELECT max(sequence) FROM operation WHERE job = ? AND step = ?)",
        {text(job), text(step)});
}

void DatabaseTwins::removeOperations(std::string const & job, std::string const & step)
{
    if (job.empty()) {
        run("DELETE FROM operation");
    } else if (step.empty()) {
        run("DELETE FROM operation WHERE job = ?", {text(job)});
    } else {
        run("DELETE FROM operation WHERE job = ? AND step = ?", {text(job), text(step)});
    }
}

} // namespace KVCAM::Embedded
