#include "encoding/JsonMembers.h"

#include <algorithm>

namespace encoding {

QJsonObject objectOf(std::vector<JsonMember> members)
{
    std::stable_sort(members.begin(), members.end(),
                     [](const JsonMember &a, const JsonMember &b) { return a.first < b.first; });
    QJsonObject object;
    for (const JsonMember &member : members)
        object.insert(member.first, member.second);
    return object;
}

} // namespace encoding
