#include "platform/embedded/HBXWallOptions.h"

#include "platform/services/HBXOptionNames.h"
#include "platform/services/OptionGroupReader.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace hbx::embedded {
namespace {

struct WallOption
{
    const char *label;
    int usual; // mm
};

constexpr WallOption kOptions[] = {
    {s_strMaxOpeningWidth, 2400}, {s_strMaxWallLineWidth, 500},   {s_strWallLineWidthDeviation, 5},
    {s_strWallEndExtension, 200}, {s_strWallAndWindowExtenH, 50}, {s_strWallAndWindowExtenV, 50},
};

const WallOption *optionOf(const QString &label)
{
    const auto isAsked = [&label](const WallOption &option) {
        return label == QString::fromUtf8(option.label) ||
               label == QCoreApplication::translate(s_strOrvCadIdentiFyWall, option.label);
    };
    const auto *found = std::find_if(std::begin(kOptions), std::end(kOptions), isAsked);
    return found == std::end(kOptions) ? nullptr : found;
}

} // namespace

HBXWallOptions::HBXWallOptions(IHBXModel *model) : m_stored(readOptionGroup(model, ptnWallSetting)) {}

int HBXWallOptions::intOption(const QString &label) const
{
    const WallOption *option = optionOf(label);
    bool isNumber = false;
    const int value = m_stored.value(option ? QString::fromUtf8(option->label) : label).toInt(&isNumber);
    if (isNumber)
        return value;
    return option ? option->usual : 0;
}

} // namespace hbx::embedded
