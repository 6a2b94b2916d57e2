#include "support/QtJsonLeaks.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

#ifndef __has_feature
#define __has_feature(name) 0 // gcc tells by a macro of its own
#endif
#if defined(__SANITIZE_ADDRESS__) || __has_feature(address_sanitizer)
#include <sanitizer/lsan_interface.h>
#else
static void __lsan_disable() {}
static void __lsan_enable() {}
#endif

namespace fuzz {
namespace {

/** Colons outside of texts: as many as members are written. */
std::ptrdiff_t membersWritten(const QByteArray &json)
{
    std::ptrdiff_t colons = 0;
    bool isInText = false;
    for (int i = 0; i < json.size(); ++i) {
        if (json[i] == '"')
            isInText = !isInText;
        else if (isInText && json[i] == '\\')
            ++i;
        else if (!isInText && json[i] == ':')
            ++colons;
    }
    return colons;
}

std::ptrdiff_t membersRead(const QJsonValue &value)
{
    std::ptrdiff_t members = 0;
    for (const QJsonValue &each : value.toArray())
        members += membersRead(each);
    const QJsonObject object = value.toObject();
    for (const QJsonValue &each : object)
        members += 1 + membersRead(each);
    return members;
}

bool leaksInQt(const QByteArray &json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    const QJsonValue root = document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
    return membersRead(root) != membersWritten(json);
}

} // namespace

QtJsonLeaks::QtJsonLeaks(const QByteArray &json) : m_isOff(true)
{
    __lsan_disable();
    m_isOff = leaksInQt(json);
    if (!m_isOff)
        __lsan_enable();
}

QtJsonLeaks::~QtJsonLeaks()
{
    if (m_isOff)
        __lsan_enable();
}

} // namespace fuzz
