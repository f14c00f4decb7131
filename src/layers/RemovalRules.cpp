#include "layers/RemovalRules.h"

#include "layers/FilePaths.h"
#include "layers/RemovalRoots.h"
#include "support/NativePath.h"
#include "support/UserDirectory.h"
#include "support/UserHome.h"

#include <QDir>

#include <algorithm>

namespace KVCAM::UIAPI {

using namespace FilePaths;

namespace {

// Never destroyed: a directory may still be removed while the process exits.
std::vector<fs::path> & removalRoots()
{
    static auto * roots = new std::vector<fs::path>;
    return *roots;
}

bool contains(std::vector<FileId> const & ids, FileId const & id)
{
    return std::find(ids.begin(), ids.end(), id) != ids.end();
}

void addKept(fs::path const & path, std::vector<FileId> & kept)
{
    if (path.empty()) {
        return;
    }
    Lineage const target = Directory::at(path).lineage();
    kept.insert(kept.end(), target.begin(), target.end());
    // A home may be reached through a link, which must stay as well.
    fs::path place = NativePath::absolute(path);
    for (fs::path above = NativePath::above(place); !above.empty(); above = NativePath::above(place)) {
        DirectoryEntry const entry = Directory::at(above).look(place.filename());
        if (entry.kind == DirectoryEntry::Kind::Link) {
            kept.push_back(entry.id);
        }
        place = above;
    }
}

} // namespace

bool RemovalRules::mayRemove(Lineage const & place, Facts const & facts)
{
    if (place.size() <= 2 || contains(facts.kept, place.front())) {
        return false;
    }
    return !facts.isRestricted || std::any_of(place.begin() + 1, place.end(),
                                              [&](FileId const & id) { return contains(facts.roots, id); });
}

RemovalRules::Facts RemovalRules::factsOf(std::vector<fs::path> const & kept,
                                          std::vector<fs::path> const & roots)
{
    Facts facts;
    for (fs::path const & path : kept) {
        addKept(path, facts.kept);
    }
    facts.isRestricted = !roots.empty();
    for (fs::path const & path : roots) {
        // The path was resolved when it was set: a link placed there since is not meant.
        Directory const root = path.has_filename() ? Directory::at(path.parent_path()).enter(path.filename())
                                                   : Directory::at(path);
        if (!path.empty() && root.isOpen()) {
            facts.roots.push_back(root.id());
        }
    }
    return facts;
}

RemovalRules::Facts RemovalRules::currentFacts()
{
    std::error_code error;
    return factsOf({fs::current_path(error), fromText(Ext::userFile(QStringLiteral("."))),
                    fromText(QDir::homePath()), homeOfUser()},
                   removalRoots());
}

void Ext::setRemovalRoots(QStringList const & directories)
{
    std::vector<fs::path> roots;
    for (QString const & directory : directories) {
        roots.push_back(NativePath::resolved(fromText(directory)));
    }
    removalRoots() = std::move(roots);
}

} // namespace KVCAM::UIAPI
