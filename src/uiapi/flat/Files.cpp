#include "uiapi/flat/Files.h"

#include "uiapi/flat/Forward.h"

namespace KVCAM::UIAPI {

using Flat::onCommonPara;

void find_input_items(QList<QString> items, QString pattern, QList<QString> & result)
{
    onCommonPara([&](auto & para) { para.find_input_items(items, pattern, result); });
}

bool saveTextByIODevice(QString const & path, QString const & text)
{
    return onCommonPara([&](auto & para) { return para.saveTextByIODevice(path, text); });
}

bool checkDir(QString const & path)
{
    return onCommonPara([&](auto & para) { return para.checkDir(path); });
}

bool delDir(std::string const & path, bool removeSelf)
{
    return onCommonPara([&](auto & para) { return para.delDir(path, removeSelf); });
}

bool copyDirectoryFile(QString const & from, QString const & to, bool overwrite)
{
    return onCommonPara([&](auto & para) { return para.copyDirectoryFile(from, to, overwrite); });
}

bool deletGeneJob(std::string const & job)
{
    return onCommonPara([&](auto & para) { return para.deletGeneJob(job); });
}

QString formatTime(qint64 milliseconds)
{
    return onCommonPara([&](auto & para) { return para.formatTime(milliseconds); });
}

} // namespace KVCAM::UIAPI
