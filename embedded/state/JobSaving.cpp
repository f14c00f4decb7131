#include "state/JobSaving.h"

#include "formats/FeatureLines.h"
#include "formats/InputFile.h"
#include "formats/JobError.h"
#include "formats/JobPaths.h"
#include "formats/NetsFile.h"

#include "support/DirectoryTree.h"
#include "support/NativePath.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <filesystem>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace KVCAM::Embedded {
namespace {

using UIAPI::Directory;
using Kind = UIAPI::DirectoryEntry::Kind;

[[noreturn]] void fail(QString const & path, char const * reason)
{
    throw JobError((QDir::cleanPath(path) + ": " + reason).toStdString());
}

// Where a job may be written: not over anything, and not into the job itself.
void checkTarget(QFileInfo const & target, QString const & job)
{
    QString const path = target.filePath();
    if (std::string const reason = refusal(target.fileName().toStdString()); !reason.empty()) {
        throw JobError(path.toStdString() + ": " + reason);
    }
    if (!UIAPI::NativePath::isLiteral(path)) {
        fail(path, "the system would take the name for another");
    }
    QString const parent = QFileInfo(target.path()).canonicalFilePath();
    if (parent.isEmpty() || !QFileInfo(parent).isDir()) {
        fail(target.path(), "no such folder");
    }
    QString const own = QFileInfo(job).canonicalFilePath();
    if (parent == own || parent.startsWith(own + '/', Qt::CaseInsensitive)) {
        fail(path, "the folder is in the job that is to be saved");
    }
    if (target.isSymLink() || (target.exists() && !target.isDir())) {
        fail(path, "there is something else of that name");
    }
    if (target.exists() &&
        !QDir(path).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot)) {
        fail(path, "the folder is not empty");
    }
}

// Copies a tree by handles, so that no link can lead out of it, not even one that comes meanwhile.
void copyTree(Directory const & from, Directory const & to, QString const & path, int depth)
{
    constexpr int deepest = 64;
    Directory::Names names;
    if (depth > deepest || !from.list(names)) {
        fail(path, depth > deepest ? "folders are nested too deeply" : "the folder cannot be read");
    }
    for (Directory::Path const & name : names) {
        QString const entry = path + '/' + QString::fromStdString(name.u8string());
        switch (from.look(name).kind) {
        case Kind::File:
            if (!from.copyFile(name, to, name)) {
                fail(entry, "the file cannot be copied");
            }
            break;
        case Kind::Directory: {
            Directory const below = from.enter(name);
            if (!below.isOpen() || !to.makeDirectory(name)) {
                fail(entry, "the folder cannot be copied");
            }
            copyTree(below, to.enter(name), entry, depth + 1);
            break;
        }
        default:
            fail(entry, "a link, or neither a file nor a folder, which is not copied");
        }
    }
}

std::string_view view(QByteArray const & bytes)
{
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

// Writes a file in place of another, from which it may differ by the ending of a compressed file.
QString replaceFile(QString const & old, QByteArray const & bytes)
{
    QFileInfo const info(old);
    bool const packed = info.suffix().compare("Z", Qt::CaseInsensitive) == 0 ||
                        info.suffix().compare("gz", Qt::CaseInsensitive) == 0;
    QString path = packed ? old.left(old.lastIndexOf('.')) : old;
    QDir const folder(info.path());
    for (QString const & sum : {'.' + info.fileName() + ".sum", '.' + QFileInfo(path).fileName() + ".sum"}) {
        QFile::remove(folder.filePath(sum)); // of the old contents
    }
    QFile::setPermissions(old, QFile::permissions(old) | QFileDevice::WriteOwner);
    QFile file(path);
    if (!QFile::remove(old) || !file.open(QIODevice::WriteOnly | QIODevice::NewOnly) ||
        file.write(bytes) != bytes.size() || !file.flush()) {
        fail(path, "the file cannot be written");
    }
    return path;
}

bool isSame(std::vector<API::point> const & a, std::vector<API::point> const & b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](API::point const & p, API::point const & q) { return p.x == q.x && p.y == q.y; });
}

bool isSame(FeaturesFile const & file, Feature const & a, FeaturesFile const & other, Feature const & b)
{
    auto const facts = [](Feature const & f) {
        return std::tuple(f.kind, f.positive, f.clockwise, f.mirrored, f.marks, f.drill, f.angle, f.code,
                          f.symbol < 0, f.contours.size());
    };
    if (facts(a) != facts(b) || !isSame(recordPoints(a), recordPoints(b))) {
        return false;
    }
    if (a.symbol < 0) {
        return true;
    }
    SymbolEntry const & symbol = file.symbols.at(a.symbol);
    SymbolEntry const & its = other.symbols.at(b.symbol);
    return symbol.name == its.name && symbol.unit == its.unit;
}

// Whether what was written reads as what is shown.
bool isSame(LayerGraphics const & shown, FeaturesFile const & written)
{
    std::size_t next = 0;
    for (std::size_t i = 0; i < shown.deleted.size(); ++i) {
        if (shown.deleted[i]) {
            continue;
        }
        if (next == written.features.size() ||
            !isSame(shown.file, shown.file.features[i], written, written.features[next])) {
            return false;
        }
        ++next;
    }
    return next == written.features.size();
}

FeatureEdits editsOf(Step const & step, std::string const & layer, LayerGraphics const & graphics)
{
    FeatureEdits edits;
    edits.deleted = graphics.deleted;
    edits.unit = graphics.file.unit;
    for (Operation const & operation : step.history) {
        if (operation.layer != layer || operation.isDeletion()) {
            continue;
        }
        if (operation.addedSymbol >= 0) {
            edits.newSymbols[operation.addedSymbol] = operation.symbol;
        }
        for (int const feature : operation.features) {
            edits.symbols[feature] = graphics.file.features[static_cast<std::size_t>(feature)].symbol;
        }
    }
    return edits;
}

// The changed files of a copied job.
class Rewriting
{
public:
    Rewriting(Job & job, QString copy) : m_job(job), m_copy(std::move(copy)) {}

    void run()
    {
        for (Step const & step : m_job.steps()) {
            DeletedFeatures deleted;
            for (auto const & [layer, graphics] : step.graphics) {
                bool const isChanged =
                    std::any_of(step.history.begin(), step.history.end(),
                                [&name = layer](Operation const & each) { return each.layer == name; });
                if (isChanged) {
                    rewrite(editsOf(step, layer, graphics), graphics);
                }
                if (std::count(graphics.deleted.begin(), graphics.deleted.end(), true) > 0) {
                    deleted.emplace(layer, graphics.deleted);
                }
            }
            if (!deleted.empty()) {
                rewriteNets(step, deleted);
            }
        }
    }

private:
    QString inCopy(QString const & path) const
    {
        QDir const folder(QDir(m_job.folder()).absolutePath());
        return QDir(m_copy).filePath(folder.relativeFilePath(QDir().absoluteFilePath(path)));
    }

    void rewrite(FeatureEdits const & edits, LayerGraphics const & graphics)
    {
        QString const path = inCopy(graphics.file.path);
        QByteArray const old = readInput(path, m_job.limits().fileBytes);
        QString written;
        try {
            written = replaceFile(path, editedFeatures(view(old), edits));
        } catch (JobError const & error) {
            fail(path, error.what());
        }
        Budget budget;
        budget.limits = m_job.limits();
        if (!isSame(graphics, readFeatures(written, budget))) {
            fail(path, "the file has changed since it was read");
        }
    }

    void rewriteNets(Step const & step, DeletedFeatures const & deleted)
    {
        QString const folder = findFolder(inCopy(step.folder), "eda");
        QString const path = folder.isEmpty() ? QString() : findFile(folder, "data");
        if (!path.isEmpty()) {
            QByteArray const old = readInput(path, m_job.limits().fileBytes);
            replaceFile(path, editedNets(view(old), deleted));
        }
    }

    Job & m_job;
    QString m_copy;
};

std::filesystem::path native(QString const & path)
{
    return UIAPI::NativePath::literal(std::filesystem::u8path(QDir::toNativeSeparators(path).toStdString()));
}

} // namespace

void saveJob(Job & job, QString const & target)
{
    QFileInfo const place(QDir::cleanPath(QDir().absoluteFilePath(target)));
    checkTarget(place, job.folder());
    QTemporaryDir const staging(place.path() + "/.uiapi-save-XXXXXX"); // beside the target, to be renamed
    QString const copy = staging.path() + "/job";
    QDir const folder(staging.path());
    bool const isReady = staging.isValid() && folder.mkdir(job.isFromArchive() ? "archive" : "job");
    if (!isReady) {
        fail(place.path(), "the folder cannot be written");
    }
    try {
        if (job.isFromArchive()) {
            QString const top = job.unpackAgain(folder.filePath("archive"));
            if (!QDir().rename(top, copy)) {
                fail(copy, "the folder cannot be renamed");
            }
        } else {
            copyTree(Directory::at(native(job.folder())), Directory::at(native(copy)), job.folder(), 0);
        }
        Rewriting(job, copy).run();
    } catch (JobError const & error) {
        throw JobError(QString::fromUtf8(error.what()).replace(copy, place.filePath()).toStdString());
    }
    if (place.exists()) {
        QDir().rmdir(place.filePath()); // an empty one
    }
    if (!QDir().rename(copy, place.filePath())) {
        fail(place.filePath(), "the folder cannot be named so");
    }
}

} // namespace KVCAM::Embedded
