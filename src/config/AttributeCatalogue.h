#pragma once

#include <QString>

#include <map>
#include <string>
#include <tuple>
#include <vector>

namespace KVCAM::UIAPI {

/// By name: whether the attribute takes a parameter, its unit, the values it offers. Not interpreted.
using AttributeMap = std::map<std::string, std::tuple<int, int, std::vector<std::string>>>;

/// The attributes known to the host's dialogs, from "attributes.json" in the configuration directory. The
/// file is only read.
class AttributeCatalogue
{
public:
    AttributeMap const & getTotalAttributes() const { return m_attributes; }
    /// Appends the names in ascending order.
    void getParentAttribute(std::vector<std::string> & out) const;

    /// Finds the file and reads it. Exceptions from the host's path helpers propagate.
    void getTotalAttributesFromJson();
    /// Adds the file's content; an element replaces an earlier one of the same name. Failures are logged.
    void readTotalAttributesFromJson(QString const & path);

private:
    AttributeMap m_attributes;
};

} // namespace KVCAM::UIAPI
