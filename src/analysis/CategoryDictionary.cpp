#include "analysis/CategoryDictionary.h"

#include "analysis/AnalysisReport.h"
#include "analysis/CategoryTables.h"

#include <algorithm>
#include <vector>

namespace KVCAM::UIAPI {
namespace {

// Empty without a table, and for a number not in it.
std::string_view nameIn(Categories::Table const * table, int number)
{
    if (table == nullptr) {
        return {};
    }
    auto const found = std::lower_bound(
        table->begin(), table->end(), number,
        [](Categories::Category const & category, int wanted) { return category.number < wanted; });
    return found == table->end() || found->number != number ? std::string_view() : found->name;
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

Categories::Table const * CategoryDictionary::find(std::string_view tableName) const
{
    auto const found = m_tables.find(tableName);
    return found == m_tables.end() ? nullptr : found->second;
}

int CategoryDictionary::getRangesEnum(std::string_view tableName, std::string_view categoryName) const
{
    Categories::Table const * table = find(tableName);
    if (table == nullptr) {
        return -1;
    }
    // A name may appear twice ("SM local spacing"). The table is ascending, so the smaller number is found.
    auto const found = std::find_if(table->begin(), table->end(), [&](Categories::Category const & category) {
        return category.name == categoryName;
    });
    return found == table->end() ? -1 : found->number;
}

std::string CategoryDictionary::getRangesName(std::string_view tableName, int number) const
{
    return std::string(nameIn(find(tableName), number));
}

void CategoryDictionary::insertDrillRout()
{
    insertTable(Categories::drillRanges);
}

void CategoryDictionary::insertBoardDrillRout()
{
    insertTable(Categories::boardDrillRanges);
}

void CategoryDictionary::insertSolidMaskRout()
{
    insertTable(Categories::solderMaskRanges);
}

void CategoryDictionary::insertSignalLayerRout()
{
    insertTable(Categories::signalLayerRanges);
}

void CategoryDictionary::insertSurfaceAnalyzerRout()
{
    insertTable(Categories::surfaceAnalyzerRanges);
}

void CategoryDictionary::insertSilkScreenRout()
{
    insertTable(Categories::silkScreenRanges);
}

void CategoryDictionary::insertPrepareCheckRout()
{
    insertTable(Categories::prePareRanges);
}

void CategoryDictionary::insertSolderMaskOpt()
{
    insertTable(Categories::solderMaskOptRanges);
}

void CategoryDictionary::insertDFMSignalLayerOptRout()
{
    insertTable(Categories::signalLayerOptRanges);
}

void CategoryDictionary::insertDFMTeardropsRout()
{
    insertTable(Categories::teardropsRanges);
}

void CategoryDictionary::insertNFPRemovalRout()
{
    insertTable(Categories::nfpRemoval);
}

void CategoryDictionary::insertPadSnappingRout()
{
    insertTable(Categories::padSnappingRanges);
}

void CategoryDictionary::insertPowerGroundRout()
{
    insertTable(Categories::powerGroundRanges);
}

void CategoryDictionary::insertPowerGroundOptRout()
{
    insertTable(Categories::powerGroundOptRanges);
}

void CategoryDictionary::insertTable(Categories::Table const & table)
{
    m_tables.insert_or_assign(table.name, &table);
}

std::string_view builtInCategoryName(std::string_view tableName, int number)
{
    auto const found = std::find_if(Categories::tables.begin(), Categories::tables.end(),
                                    [&](Categories::Table const & table) { return table.name == tableName; });
    return found == Categories::tables.end() ? std::string_view() : nameIn(&*found, number);
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
