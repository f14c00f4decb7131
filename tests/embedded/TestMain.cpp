#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

// Each case starts in a fresh working directory. The database needs an application object; no test here needs
// a display.
int main(int argc, char ** argv)
{
    QTemporaryDir world;
    if (!world.isValid() || !QDir::setCurrent(world.path())) {
        return 2;
    }
    QCoreApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    int const result = RUN_ALL_TESTS();
    QDir::setCurrent(QDir::rootPath());
    return result;
}
