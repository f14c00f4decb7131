#pragma once

#include "support/JsonReader.h"

#include <QCoreApplication>
#include <QString>

#include <algorithm>
#include <bitset>
#include <cstddef>
#include <functional>
#include <string_view>
#include <vector>

namespace KVCAM::UIAPI {

/// A member of an object that is read.
struct JsonMember
{
    std::string_view key;
    std::function<bool()> read; ///< its value
    bool isRequired = true;
};

/// What is done with a member that is not among those that are read.
enum class UnknownMember
{
    Skipped,
    Refused
};

/// Reads an object; fails if a required member is missing, or if one of them is there twice.
inline bool readMembers(JsonReader & json, std::vector<JsonMember> const & members,
                        UnknownMember unknown = UnknownMember::Skipped)
{
    constexpr std::size_t mostMembers = 32;
    std::bitset<mostMembers> found;
    bool const isRead = json.object([&](std::string_view key) {
        auto const member = std::find_if(members.begin(), members.end(),
                                         [&](JsonMember const & each) { return each.key == key; });
        if (member == members.end()) {
            return unknown == UnknownMember::Skipped
                       ? json.skip()
                       : json.fail(QCoreApplication::translate("Json", "The member is unknown."));
        }
        auto const index = static_cast<std::size_t>(member - members.begin());
        if (found.test(index)) {
            return json.fail(QCoreApplication::translate("Json", "The member is there twice."));
        }
        found.set(index);
        return member->read();
    });
    for (std::size_t i = 0; isRead && i < members.size(); ++i) {
        if (members[i].isRequired && !found.test(i)) {
            return json.fail(QCoreApplication::translate("Json", "The member \"%1\" is missing.")
                                 .arg(QString::fromLatin1(members[i].key.data(),
                                                          static_cast<int>(members[i].key.size()))));
        }
    }
    return isRead;
}

} // namespace KVCAM::UIAPI
