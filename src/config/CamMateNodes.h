#pragma once

#include <QString>

#include <string>
#include <vector>

namespace KVCAM::UIAPI {

/// The flow names of the CAM-mate nodes, from "cammatenodes.json" in the configuration directory, in the
/// file's order. The file is optional and only read.
class CamMateNodes
{
public:
    std::vector<std::string> const & getCamMateNodes() const { return m_names; }

    /// Finds the file and reads it. Exceptions from the host's path helpers propagate.
    void getCamMateNodesFromJson();
    /// Adds the names of the file: a top-level array of objects, each with a string "FlowName", or an object
    /// whose "FlowName" is an array of strings. Anything else is skipped. A missing file is silent; a file
    /// that cannot be opened or parsed gives one ERROR line.
    void readCamMateNodesFromJson(QString const & path);

private:
    std::vector<std::string> m_names;
};

} // namespace KVCAM::UIAPI
