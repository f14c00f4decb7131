#include "harness/UiapiTest.h"

#include "ext/Version.h"

#include <QVersionNumber>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

class VersionTest : public UiapiTest
{};

// Below 1.0 every minor version may break a module.
TEST_F(VersionTest, AModuleOfAnotherMinorVersionDoesNotFitAndIsReported)
{
    int const minor = Ext::version().minorVersion();
    ASSERT_EQ(Ext::version(), Ext::headerVersion());
    ASSERT_EQ(Ext::version().majorVersion(), 0) << "from 1.0 on, an older minor version fits";
    struct
    {
        QVersionNumber headers;
        bool fits;
    } const rows[] = {
        {{0, minor, 0}, true},      {{0, minor, 99}, true}, {{0, minor - 1, 0}, false},
        {{0, minor + 1, 0}, false}, {{1, minor, 0}, false},
    };
    for (auto const & row : rows) {
        QVersionNumber const & headers = row.headers;
        QString const problem = "A module was compiled with the headers of UIAPICommon " +
                                headers.toString() + ", which do not fit the library " +
                                Ext::version().toString() + '.';
        EXPECT_EQ(Ext::versionProblem(headers), row.fits ? QString() : problem);
        EXPECT_EQ(Ext::checkVersion(headers.majorVersion(), headers.minorVersion(), headers.microVersion()),
                  row.fits);
        EXPECT_EQ(log.take(), row.fits ? Lines{} : Lines{paraError(problem.toStdString())});
    }
}

} // namespace
