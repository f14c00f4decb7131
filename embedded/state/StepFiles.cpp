#include "state/StepFiles.h"

#include "formats/JobError.h"
#include "formats/JobPaths.h"
#include "formats/ToolsFile.h"

namespace KVCAM::Embedded {

LayerContents readLayer(FilesSource const & source)
{
    LayerContents contents;
    contents.before = source.budget;
    contents.after = source.budget;
    try {
        FolderList const folder = source.folder.isEmpty() ? FolderList() : FolderList(source.folder);
        QString file = folder.file("features");
        bool const cutToTables = file.isEmpty();
        if (cutToTables) {
            file = folder.file("features.tables");
        }
        LayerGraphics & graphics = contents.graphics;
        graphics.missing = file.isEmpty();
        if (!graphics.missing) {
            Budget budget = source.budget; // counted only if all was read
            graphics.file = readFeatures(file, budget, cutToTables);
            graphics.cutToTables = cutToTables;
            graphics.deleted.resize(graphics.file.features.size());
            contents.after = budget;
        }
    } catch (JobError const & error) {
        contents.error = error.what();
    }
    return contents;
}

NetsContents readNets(FilesSource const & source)
{
    NetsContents contents;
    try {
        QString const folder = findFolder(source.folder, "eda");
        QString const file = folder.isEmpty() ? QString() : findFile(folder, "data");
        contents.nets = file.isEmpty() ? NetsFile() : readNets(file, source.budget.stop);
    } catch (JobError const & error) {
        contents.error = error.what();
    }
    return contents;
}

std::vector<Tool> readTools(FilesSource const & source)
{
    FolderList const folder = source.folder.isEmpty() ? FolderList() : FolderList(source.folder);
    QString const file = folder.file("tools");
    Budget budget = source.budget;
    return file.isEmpty() ? std::vector<Tool>() : readTools(file, budget);
}

} // namespace KVCAM::Embedded
