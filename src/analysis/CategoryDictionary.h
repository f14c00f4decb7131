#pragma once

#include <map>
#include <string>
#include <string_view>

namespace KVCAM::UIAPI {

namespace Categories {
struct Table;
}

/// The result categories by table and number, from the registered built-in tables. The tables are not copied.
class CategoryDictionary
{
public:
    /// Runs the fourteen builders, in their order.
    void insertAll();

    /// The smallest number of that name in the table, compared byte for byte; -1 if the table or name is
    /// unknown.
    int getRangesEnum(std::string_view tableName, std::string_view categoryName) const;
    /// Empty if the table or number is unknown.
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

    std::map<std::string_view, Categories::Table const *> m_tables; // by name; the table owns the string
};

/// The name of a category in the built-in tables; empty if the table or number is unknown.
std::string_view builtInCategoryName(std::string_view table, int number);

} // namespace KVCAM::UIAPI
