#include "UIAPICommonTest/TestWorld.h"

#include <glog/logging.h>

#include <QDir>
#include <QLocale>

namespace KVCAM::Testing {

TestWorld::TestWorld() : m_ready(m_folder.isValid() && QDir::setCurrent(m_folder.path()))
{
    qputenv("HOME", m_folder.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", m_folder.path().toUtf8());
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QLocale::setDefault(QLocale::c());
    if (!google::IsGoogleLoggingInitialized()) {
        google::InitGoogleLogging("tests");
    }
    for (auto const severity : {google::GLOG_INFO, google::GLOG_WARNING, google::GLOG_ERROR}) {
        google::SetLogDestination(severity, ""); // no log files; captures see every line
    }
    google::SetStderrLogging(google::GLOG_FATAL);
}

TestWorld::~TestWorld()
{
    QDir::setCurrent(QDir::rootPath()); // so that the temporary directory can be removed
}

} // namespace KVCAM::Testing
