#pragma once

#include <map>
#include <string>
#include <string_view>

namespace KVCAM::UIAPI {

/// The result categories by table and number, made of the built-in tables and never changed afterwards.
class CategoryDictionary
{
public:
    /// Runs the fourteen builders, in their order.
    void insertAll();

    /// The smallest number of that name in the table, byte for byte; -1 when the table or the name is
    /// unknown.
    int getRangesEnum(std::string const & tableName, std::string const & categoryName) const;
    /// Empty when the table or the number is unknown.
    std::string getRangesName(std::string const & tableName, int number) const;

    // Each builds one table.
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
    using Numbers = std::map<int, std::string>;

    /// Keeps the name that a number has already.
    static void insertPair(int number, std::string name, Numbers & table);
    void insertTable(std::string_view name);

    std::map<std::string, Numbers> m_tables;
};

/// The name of a category in the built-in tables; empty when the table or the number is unknown.
std::string_view builtInCategoryName(std::string_view table, int number);

} // namespace KVCAM::UIAPI
