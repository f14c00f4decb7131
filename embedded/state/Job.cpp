#include "state/Job.h"

#include "formats/JobPaths.h"
#include "formats/LineReader.h"
#include "formats/ToolsFile.h"

#include <QDir>

#include <algorithm>

namespace KVCAM::Embedded {
namespace {

// The engine uses nothing from the header, but a damaged header means a damaged step.
void checkStepHeader(QString const & path)
{
    LineReader reader(path);
    int blockLine = 0;
    while (reader.next()) {
        std::string_view const line = reader.line();
        if (line.back() == '{' && blockLine == 0) {
            blockLine = reader.lineNumber();
        } else if (line == "}" && blockLine != 0) {
            blockLine = 0;
        } else {
            KeyValue const pair = keyValue(reader);
            if (blockLine == 0 && (pair.key == "X_DATUM" || pair.key == "Y_DATUM")) {
                reader.decimal(pair.value, "datum");
            }
        }
    }
    if (blockLine != 0) {
        reader.fail("the block is not closed", blockLine);
    }
}

std::vector<std::string> folderNames(QString const & folder)
{
    std::vector<std::string> names;
    if (!folder.isEmpty()) {
        QStringList const folders = entriesOf(folder, QDir::Dirs | QDir::NoDotAndDotDot);
        for (QString const & name : folders) {
            names.push_back(name.toStdString());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace

Job::Job(std::string const & path, std::string const & name)
{
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

    QString const matrixFolder = findFolder(m_folder, "matrix");
    QString const matrixFile = matrixFolder.isEmpty() ? QString() : findFile(matrixFolder, "matrix");
    m_matrix = readMatrix(matrixFile.isEmpty() ? QDir(m_folder).filePath("matrix/matrix") : matrixFile);
    for (std::string const & step : m_matrix.steps) {
        m_steps.push_back(readStep(step));
    }
    m_symbols = folderNames(findFolder(m_folder, "symbols"));
}

Step Job::readStep(std::string const & name) const
{
    Step step;
    step.name = name;
    QString const steps = findFolder(m_folder, "steps");
    step.folder = steps.isEmpty() ? QString() : findFolder(steps, name);
    if (step.folder.isEmpty()) {
        throw JobError(QDir(m_folder).filePath("steps/" + QString::fromStdString(name)).toStdString() +
                       ": no such folder, but the matrix names the step");
    }
    if (!m_matrix.layers.empty() && findFolder(step.folder, "layers").isEmpty()) {
        throw JobError(QDir(step.folder).filePath("layers").toStdString() +
                       ": no such folder, but the matrix names layers");
    }
    if (QString const header = findFile(step.folder, "stephdr"); !header.isEmpty()) {
        checkStepHeader(header);
    }
    if (QString const profile = findFile(step.folder, "profile"); !profile.isEmpty()) {
        step.profile = profileOf(readFeatures(profile));
    }
    return step;
}

bool Job::hasSymbol(std::string const & name) const
{
    return std::any_of(m_symbols.begin(), m_symbols.end(),
                       [&name](std::string const & symbol) { return lowerCase(symbol) == name; });
}

std::optional<FeaturesFile> Job::symbolDrawing(std::string const & name) const
{
    if (!hasSymbol(lowerCase(name))) {
        return std::nullopt;
    }
    QString const symbols = findFolder(m_folder, "symbols");
    QString const folder = symbols.isEmpty() ? QString() : findFolder(symbols, name);
    QString const file = folder.isEmpty() ? QString() : findFile(folder, "features");
    return file.isEmpty() ? std::nullopt : std::optional(readFeatures(file));
}

Step * Job::findStep(std::string const & name)
{
    auto const found = std::find_if(m_steps.begin(), m_steps.end(),
                                    [&name](Step const & step) { return step.name == name; });
    return found == m_steps.end() ? nullptr : &*found;
}

Step & Job::step(std::string const & name)
{
    Step * const found = findStep(name);
    if (found == nullptr) {
        throw JobError(m_name + ": no step \"" + name + '"');
    }
    return *found;
}

QString Job::layerFolder(Step const & step, std::string const & layer) const
{
    if (std::none_of(m_matrix.layers.begin(), m_matrix.layers.end(),
                     [&layer](API::layer_info const & info) { return info.name == layer; })) {
        throw JobError(m_name + ": no layer \"" + layer + '"');
    }
    QString const layers = findFolder(step.folder, "layers");
    return layers.isEmpty() ? QString() : findFolder(layers, layer);
}

LayerGraphics & Job::graphics(std::string const & stepName, std::string const & layer)
{
    Step & owner = step(stepName);
    if (auto const known = owner.graphics.find(layer); known != owner.graphics.end()) {
        return known->second;
    }
    LayerGraphics graphics;
    graphics.missing = true;
    if (QString const folder = layerFolder(owner, layer); !folder.isEmpty()) {
        if (QString const file = findFile(folder, "features"); !file.isEmpty()) {
            graphics.file = readFeatures(file);
            graphics.missing = false;
        } else if (QString const tables = findFile(folder, "features.tables"); !tables.isEmpty()) {
            graphics.file = readFeatures(tables, true);
            graphics.cutToTables = true;
            graphics.missing = false;
        }
    }
    graphics.deleted.resize(graphics.file.features.size());
    return owner.graphics.emplace(layer, std::move(graphics)).first->second;
}

std::vector<Tool> Job::tools(std::string const & stepName, std::string const & layer)
{
    QString const folder = layerFolder(step(stepName), layer);
    QString const file = folder.isEmpty() ? QString() : findFile(folder, "tools");
    return file.isEmpty() ? std::vector<Tool>() : readTools(file);
}

Deletion Job::checkedDeletion(std::string const & stepName, std::string const & layer,
                              std::vector<int> const & indices)
{
    LayerGraphics const & target = graphics(stepName, layer);
    if (indices.empty()) {
        throw JobError(m_name + ": nothing to delete");
    }
    Deletion deletion{layer, indices};
    std::sort(deletion.features.begin(), deletion.features.end());
    deletion.features.erase(std::unique(deletion.features.begin(), deletion.features.end()),
                            deletion.features.end());
    for (int const index : deletion.features) {
        if (index < 0 || static_cast<std::size_t>(index) >= target.deleted.size() ||
            target.deleted[static_cast<std::size_t>(index)]) {
            throw JobError(m_name + ": layer \"" + layer + "\" has no feature " + std::to_string(index));
        }
    }
    return deletion;
}

void Job::apply(std::string const & stepName, Deletion deletion)
{
    LayerGraphics & target = graphics(stepName, deletion.layer);
    std::vector<Deletion> & history = step(stepName).history;
    history.push_back(std::move(deletion)); // first, since it may throw
    for (int const index : history.back().features) {
        target.deleted[static_cast<std::size_t>(index)] = true;
    }
}

bool Job::undo(std::string const & stepName)
{
    Step * const owner = findStep(stepName);
    if (owner == nullptr || owner->history.empty()) {
        return false;
    }
    Deletion const & latest = owner->history.back();
    LayerGraphics & target = graphics(stepName, latest.layer);
    for (int const index : latest.features) {
        target.deleted[static_cast<std::size_t>(index)] = false;
    }
    owner->history.pop_back();
    return true;
}

} // namespace KVCAM::Embedded
