#include "analysis/CategoryDictionary.h"

#include "analysis/AnalysisReport.h"
#include "analysis/CategoryTables.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace KVCAM::UIAPI {
namespace {

Categories::Table const * builtInTable(std::string_view name)
{
    auto const found = std::find_if(Categories::tables.begin(), Categories::tables.end(),
                                    [&](Categories::Table const & table) { return table.name == name; });
    return found == Categories::tables.end() ? nullptr : &*found;
}

} // namespace

void CategoryDictionary::insertAll()
{
    insertDrillRout();
    insertBoardDrillRout();
    insertSolidMaskRout();
    insertSignalLayerRout();
    insertSurfaceAnalyzerRout();
    insertSilkScreenRout();
    insertPrepareCheckRout();
    insertSolderMaskOpt();
    insertDFMSignalLayerOptRout();
    insertDFMTeardropsRout();
    insertNFPRemovalRout();
    insertPadSnappingRout();
    insertPowerGroundRout();
    insertPowerGroundOptRout();
}

int CategoryDictionary::getRangesEnum(std::string const & tableName, std::string const & categoryName) const
{
    auto const table = m_tables.find(tableName);
    if (table == m_tables.end()) {
        return -1;
    }
    // A name may stand twice ("SM local spacing"); the smaller number answers.
    auto const found = std::find_if(table->second.begin(), table->second.end(),
                                    [&](auto const & entry) { return entry.second == categoryName; });
    return found == table->second.end() ? -1 : found->first;
}

std::string CategoryDictionary::getRangesName(std::string const & tableName, int number) const
{
    auto const table = m_tables.find(tableName);
    if (table == m_tables.end()) {
        return {};
    }
    auto const found = table->second.find(number);
    return found == table->second.end() ? std::string() : found->second;
}

void CategoryDictionary::insertDrillRout()
{
    insertTable("DrillRanges");
}

void CategoryDictionary::insertBoardDrillRout()
{
    insertTable("BoardDrillRanges");
}

void CategoryDictionary::insertSolidMaskRout()
{
    insertTable("SolderMaskRanges");
}

void CategoryDictionary::insertSignalLayerRout()
{
    insertTable("SignalLayerRanges");
}

void CategoryDictionary::insertSurfaceAnalyzerRout()
{
    insertTable("SurfaceAnalyzerRanges");
}

void CategoryDictionary::insertSilkScreenRout()
{
    insertTable("SilkScreenRanges");
}

void CategoryDictionary::insertPrepareCheckRout()
{
    insertTable("PrePareRanges");
}

void CategoryDictionary::insertSolderMaskOpt()
{
    insertTable("SolderMaskOptRanges");
}

void CategoryDictionary::insertDFMSignalLayerOptRout()
{
    insertTable("SignalLayerOptRanges");
}

void CategoryDictionary::insertDFMTeardropsRout()
{
    insertTable("TeardropsRanges");
}

void CategoryDictionary::insertNFPRemovalRout()
{
    insertTable("NFPRemoval");
}

void CategoryDictionary::insertPadSnappingRout()
{
    insertTable("PadSnappingRanges");
}

void CategoryDictionary::insertPowerGroundRout()
{
    insertTable("PowerGroundRanges");
}

void CategoryDictionary::insertPowerGroundOptRout()
{
    insertTable("PowerGroundOptRanges");
}

void CategoryDictionary::insertPair(int number, std::string name, Numbers & table)
{
    table.try_emplace(number, std::move(name));
}

void CategoryDictionary::insertTable(std::string_view name)
{
    Numbers numbers;
    if (Categories::Table const * table = builtInTable(name)) {
        for (Categories::Category const & category : *table) {
            insertPair(category.number, std::string(category.name), numbers);
        }
    }
    m_tables.insert_or_assign(std::string(name), std::move(numbers));
}

std::string_view builtInCategoryName(std::string_view tableName, int number)
{
    Categories::Table const * table = builtInTable(tableName);
    if (table == nullptr) {
        return {};
    }
    auto const found = std::lower_bound(
        table->begin(), table->end(), number,
        [](Categories::Category const & category, int wanted) { return category.number < wanted; });
    return found == table->end() || found->number != number ? std::string_view() : found->name;
}

std::vector<std::string> Ext::categoryTables()
{
    std::vector<std::string> names;
    names.reserve(Categories::tables.size());
    for (Categories::Table const & table : Categories::tables) {
        names.emplace_back(table.name);
    }
    return names;
}

} // namespace KVCAM::UIAPI
