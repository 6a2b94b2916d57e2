#pragma once

#include "platform/dwgx/StrictJson.h"
#include "platform/embedded/DatabaseRefusal.h"

#include <string>

/** Refusals that readers of files throw, as text for tests. */
namespace refusaltest {

/** "good", or what a piece of work throws as a refusal: its place, where it has one, and its reason. */
template <typename Work> std::string toldBy(Work work)
{
    const auto told = [](const auto &refusal) {
        const QString place = refusal.place.isEmpty() ? QString() : refusal.place + QStringLiteral(": ");
        return (place + refusal.reason).toStdString();
    };
    try {
        work();
        return "good";
    } catch (const hbx::embedded::DatabaseRefusal &refusal) {
        return told(refusal);
    } catch (const dwgx::JsonRefusal &refusal) {
        return told(refusal);
    }
}

} // namespace refusaltest
