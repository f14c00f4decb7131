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

    /// Finds the file and reads it. Lets through what the host's path helpers throw.
    void getCamMateNodesFromJson();
    /// Adds the names of the file: a top array of objects each with a text "FlowName", or an object whose
    /// "FlowName" is an array of texts. Whatever is shaped otherwise is skipped. A missing file is silent,
    /// one that cannot be opened or parsed gives one ERROR line.
    void readCamMateNodesFromJson(QString const & path);

private:
    std::vector<std::string> m_names;
};

} // namespace KVCAM::UIAPI
