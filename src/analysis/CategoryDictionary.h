#pragma once

#include <map>
#include <string>
#include <string_view>

namespace KVCAM::UIAPI {

namespace Categories {
struct Table;
}

/// The result categories by table and number: the built-in tables that were registered. They are looked up,
/// not copied.
class CategoryDictionary
{
public:
    /// Runs the fourteen builders, in their order.
    void insertAll();

    /// The smallest number of that name in the table, byte for byte; -1 when the table or the name is
    /// unknown.
    int getRangesEnum(std::string_view tableName, std::string_view categoryName) const;
    /// Empty when the table or the number is unknown.
    std::string getRangesName(std::string_view tableName, int number) const;

    // Each registers one table.
    void insertDrillRout();
    void insertBoardDrillRout();
    void insertSolidMaskRout();
    void insertSignalLayerRout();
    void insertSurfaceAnalyzerRout();
    void insertSilkScreenRout();
    void insertPrepareCheckRout();
    void insertSolderMaskOpt();
    void insertDFMSignalLayerOptRout();
    void insertDFMTeardropsRout();
    void insertNFPRemovalRout();
    void insertPadSnappingRout();
    void insertPowerGroundRout();
    void insertPowerGroundOptRout();

private:
    void insertTable(Categories::Table const & table);
    /// Null for a table that was not registered.
    Categories::Table const * find(std::string_view tableName) const;

    std::map<std::string_view, Categories::Table const *> m_tables; // by name, which the table holds
};

/// The name of a category in the built-in tables; empty when the table or the number is unknown.
std::string_view builtInCategoryName(std::string_view table, int number);

} // namespace KVCAM::UIAPI
