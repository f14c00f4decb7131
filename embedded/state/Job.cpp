#include "state/Job.h"

#include "formats/Archive.h"
#include "formats/FeatureLines.h"
#include "formats/JobPaths.h"
#include "formats/LineReader.h"
#include "state/Panel.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <utility>

namespace KVCAM::Embedded {
namespace {

// The name of an archive's job: that of the file, since the folder in it often has a general one.
std::string nameOfArchive(QString const & archive)
{
    QString name = QFileInfo(archive).fileName();
    for (char const * const ending : {".tgz", ".tar.gz", ".tar", ".zip"}) {
        if (name.endsWith(ending, Qt::CaseInsensitive)) {
            name.chop(static_cast<int>(qstrlen(ending)));
            break;
        }
    }
    return name.toStdString();
}

std::pair<qint64, QDateTime> stateOf(QString const & archive)
{
    QFileInfo const info(archive);
    return {info.size(), info.lastModified()};
}

// An error that names the archive in place of the folder that it is unpacked to.
std::string inArchive(std::string const & error, QString const & folder, QString const & archive)
{
    return QString::fromStdString(error).replace(folder, archive).toStdString();
}

// Jobs are opened in any thread.
long long nextNumber()
{
    static std::atomic<long long> latest{0};
    return ++latest;
}

} // namespace

Job::Job(std::string const & path, std::string const & name, JobLimits const & limits, StopFlag stop)
    : m_number(nextNumber())
{
    m_budget.limits = limits;
    m_budget.stop = stop;
    QString const parent = QString::fromStdString(path);
    if (std::string const reason = refusal(name); !reason.empty()) {
        throw JobError(path + ": " + reason);
    }
    m_folder = findFolder(parent, name);
    if (m_folder.isEmpty()) {
        throw JobError(QDir(parent).filePath(QString::fromStdString(name)).toStdString() +
                       ": no such folder");
    }
    m_name = QDir(m_folder).dirName().toStdString();

    FolderList const folder(m_folder);
    QString const matrixFolder = folder.folder("matrix");
    QString const matrixFile = matrixFolder.isEmpty() ? QString() : findFile(matrixFolder, "matrix");
    m_matrix =
        readMatrix(matrixFile.isEmpty() ? QDir(m_folder).filePath("matrix/matrix") : matrixFile, m_budget);
    QString const stepsFolder = folder.folder("steps");
    FolderList const steps = stepsFolder.isEmpty() ? FolderList() : FolderList(stepsFolder);
    for (std::string const & step : m_matrix.steps) {
        m_stepIndices.emplace(step, m_steps.size());
        m_steps.push_back(readStep(steps, step));
    }
    checkPanels(m_steps);
    m_symbolsFolder = folder.folder("symbols");
    readSymbolNames();
    m_budget.stop = {}; // the flag ends with the opening
}

std::unique_ptr<Job> Job::fromArchive(std::string const & archive, JobLimits const & limits, StopFlag stop)
{
    QString const path = QDir::cleanPath(QString::fromStdString(archive));
    std::string const name = nameOfArchive(path);
    if (std::string const reason = refusal(name); !reason.empty()) {
        throw JobError(archive + ": " + reason);
    }
    auto const state = stateOf(path); // before it is read
    auto unpacked = std::make_shared<QTemporaryDir>(QDir::tempPath() + "/uiapi-job-XXXXXX");
    if (!unpacked->isValid()) {
        throw JobError(archive + ": no temporary folder: " + unpacked->errorString().toStdString());
    }
    QDir folder(unpacked->path());
    QString const own = folder.filePath("job/" + QString::fromStdString(name));
    if (!folder.mkdir("archive") || !folder.mkdir("job") ||
        !folder.rename(unpackArchive(path, folder.filePath("archive"), limits, false, stop), own)) {
        throw JobError(archive + ": cannot write to the temporary folder " + unpacked->path().toStdString());
    }
    try {
        auto job = std::make_unique<Job>(folder.filePath("job").toStdString(), name, limits, stop);
        job->m_unpacked = std::move(unpacked);
        job->m_archive = path;
        job->m_archiveState = state;
        return job;
    } catch (JobError const & error) {
        throw JobError(inArchive(error.what(), own, path));
    }
}

QString Job::unpackAgain(QString const & folder) const
{
    if (stateOf(m_archive) != m_archiveState) {
        throw JobError(m_archive.toStdString() + ": the archive has changed since it was opened");
    }
    return unpackArchive(m_archive, folder, m_budget.limits, true);
}

std::string Job::named(std::string const & error) const
{
    return isFromArchive() ? inArchive(error, m_folder, m_archive) : error;
}

template <class Reading>
auto Job::named(Reading reading) const -> decltype(reading())
{
    try {
        return reading();
    } catch (JobError const & error) {
        throw JobError(named(std::string(error.what())));
    }
}

Step Job::readStep(FolderList const & steps, std::string const & name)
{
    m_budget.stop.check();
    Step step;
    step.name = name;
    step.folder = steps.folder(name);
    if (step.folder.isEmpty()) {
        throw JobError(QDir(m_folder).filePath("steps/" + QString::fromStdString(name)).toStdString() +
                       ": no such folder, but the matrix names the step");
    }
    FolderList const folder(step.folder);
    if (folder.folder("layers").isEmpty() && !m_matrix.layers.empty()) {
        throw JobError(QDir(step.folder).filePath("layers").toStdString() +
                       ": no such folder, but the matrix names layers");
    }
    if (QString const header = folder.file("stephdr"); !header.isEmpty()) {
        step.header = readStepHeader(header, m_budget);
    }
    if (QString const profile = folder.file("profile"); !profile.isEmpty()) {
        Budget budget = m_budget; // the outline is kept, not the features
        step.profile = profileOf(readFeatures(profile, budget), m_budget.limits.profilePoints);
        m_budget.bytes = budget.bytes;
    }
    return step;
}

void Job::readSymbolNames()
{
    if (m_symbolsFolder.isEmpty()) {
        return;
    }
    m_symbols = FolderList(m_symbolsFolder).folderNames();
    m_budget.symbols += static_cast<long long>(m_symbols.size());
    if (m_budget.symbols > m_budget.limits.symbols) {
        throw JobError(m_symbolsFolder.toStdString() + ": more than " +
                       std::to_string(m_budget.limits.symbols) + " symbols, the job's limit");
    }
    for (std::string const & symbol : m_symbols) {
        m_budget.stop.check();
        m_symbolFolders.emplace(lowerCase(symbol), symbol);
    }
}

std::string Job::symbolFolder(std::string const & name) const
{
    if (std::binary_search(m_symbols.begin(), m_symbols.end(), name)) {
        return name;
    }
    auto const found = m_symbolFolders.find(lowerCase(name));
    return found == m_symbolFolders.end() ? std::string() : found->second;
}

bool Job::hasSymbol(std::string const & name) const
{
    return m_symbolFolders.count(name) != 0;
}

std::optional<FeaturesFile> Job::symbolDrawing(std::string const & name) const
{
    std::string const own = symbolFolder(name);
    if (own.empty()) {
        return std::nullopt;
    }
    return named([&]() -> std::optional<FeaturesFile> {
        QString const file =
            findFile(QDir(m_symbolsFolder).filePath(QString::fromStdString(own)), "features");
        Budget budget = m_budget; // the drawing is not kept here
        return file.isEmpty() ? std::nullopt : std::optional(readFeatures(file, budget));
    });
}

Step * Job::findStep(std::string const & name)
{
    auto const found = m_stepIndices.find(name);
    return found == m_stepIndices.end() ? nullptr : &m_steps[found->second];
}

Step & Job::step(std::string const & name)
{
    Step * const found = findStep(name);
    if (found == nullptr) {
        throw JobError(m_name + ": no step \"" + name + '"');
    }
    return *found;
}

QString Job::layerFolder(Step & step, std::string const & layer)
{
    if (std::none_of(m_matrix.layers.begin(), m_matrix.layers.end(),
                     [&layer](API::layer_info const & info) { return info.name == layer; })) {
        throw JobError(m_name + ": no layer \"" + layer + '"');
    }
    if (!step.layers) {
        step.layers.emplace(findFolder(step.folder, "layers"));
    }
    return step.layers->folder(layer);
}

FilesSource Job::layerSource(std::string const & stepName, std::string const & layer)
{
    Step & owner = step(stepName);
    return {named([&] { return layerFolder(owner, layer); }), m_budget, m_unpacked};
}

bool Job::isRead(std::string const & stepName, std::string const & layer)
{
    Step const & owner = step(stepName);
    return owner.graphics.count(layer) != 0 || owner.unreadable.count(layer) != 0;
}

template <class Contents>
Contents Job::succeeded(Contents contents) const
{
    if (!contents.error.empty()) {
        throw JobError(named(contents.error));
    }
    return contents;
}

LayerGraphics & Job::graphics(std::string const & stepName, std::string const & layer)
{
    Step & owner = step(stepName);
    if (auto const known = owner.graphics.find(layer); known != owner.graphics.end()) {
        return known->second;
    }
    if (auto const failed = owner.unreadable.find(layer); failed != owner.unreadable.end()) {
        throw JobError(failed->second);
    }
    return adopt(stepName, layer, succeeded(readLayer(layerSource(stepName, layer))));
}

// Another file may have been read since this one was begun, so that both fit alone but not together.
void Job::charge(LayerContents const & contents)
{
    Budget budget = m_budget;
    budget.bytes += contents.after.bytes - contents.before.bytes;
    budget.points += contents.after.points - contents.before.points;
    budget.symbols += contents.after.symbols - contents.before.symbols;
    budget.time += contents.after.time - contents.before.time;
    std::string const exceeded = exceededLimit(budget);
    if (!exceeded.empty()) {
        throw JobError(contents.graphics.file.path.toStdString() + ": " + exceeded);
    }
    m_budget = budget;
}

LayerGraphics & Job::adopt(std::string const & stepName, std::string const & layer, LayerContents contents)
{
    Step & owner = step(stepName);
    if (isRead(stepName, layer)) {
        return graphics(stepName, layer);
    }
    try {
        if (!contents.error.empty()) {
            throw JobError(contents.error);
        }
        charge(contents);
    } catch (JobError const & error) {
        std::string const text = named(std::string(error.what()));
        owner.unreadable.emplace(layer, text);
        throw JobError(text);
    }
    if (contents.graphics.missing) {
        owner.nothing.missing = true;
        return owner.nothing;
    }
    return owner.graphics.emplace(layer, std::move(contents.graphics)).first->second;
}

std::vector<Tool> Job::tools(std::string const & stepName, std::string const & layer)
{
    FilesSource const source = layerSource(stepName, layer);
    return named([&source]() { return readTools(source); });
}

FilesSource Job::netsSource(std::string const & stepName)
{
    return {step(stepName).folder, m_budget, m_unpacked};
}

bool Job::areNetsRead(std::string const & stepName)
{
    Step const & owner = step(stepName);
    return owner.nets || !owner.netsError.empty();
}

NetsFile const & Job::adopt(std::string const & stepName, NetsContents contents)
{
    Step & owner = step(stepName);
    if (!areNetsRead(stepName)) {
        owner.netsError = named(contents.error);
        if (owner.netsError.empty()) {
            owner.nets = std::move(contents.nets);
        }
    }
    if (!owner.netsError.empty()) {
        throw JobError(owner.netsError);
    }
    return *owner.nets;
}

std::string Job::net(std::string const & stepName, std::string const & layer, int feature)
{
    checkFeature(graphics(stepName, layer), layer, feature);
    NetsFile const & nets =
        adopt(stepName, areNetsRead(stepName) ? NetsContents() : succeeded(readNets(netsSource(stepName))));
    auto const & layers = nets.layers;
    auto const listed = std::find_if(layers.begin(), layers.end(),
                                     [&layer](NetsFile::Layer const & each) { return each.name == layer; });
    auto const count = graphics(stepName, layer).file.features.size();
    if (listed == layers.end() || listed->entries.empty() || listed->entries.back().first >= count) {
        return {};
    }
    auto const wanted = static_cast<std::uint32_t>(feature);
    auto const entry = std::lower_bound(
        listed->entries.begin(), listed->entries.end(), wanted,
        [](NetsFile::Entry const & each, std::uint32_t number) { return each.first < number; });
    return entry != listed->entries.end() && entry->first == wanted ? nets.nets[entry->second]
                                                                    : std::string();
}

std::vector<FeatureAttribute> Job::attributes(std::string const & stepName, std::string const & layer,
                                              int feature)
{
    LayerGraphics const & target = graphics(stepName, layer);
    checkFeature(target, layer, feature);
    return named([&]() { return readAttributes(target.file.path, feature, m_budget.limits.fileBytes); });
}

} // namespace KVCAM::Embedded
