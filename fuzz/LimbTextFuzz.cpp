// Limb texts, with a pattern and two pictures to find.

#include "column/ORVCADColumnHoopBarSettingPar.h"
#include "support/FuzzInput.h"

#include <memory>

namespace {

ORVCADColumnHoopBarSettingPar *catalogue()
{
    auto par = std::make_unique<ORVCADColumnHoopBarSettingPar>();
    par->addHoopBarPicInfo(7, new ORVCADColumnHoopBarPicInfo{7, 4, QString()});
    par->addHoopBarPicInfo(9, new ORVCADColumnHoopBarPicInfo{9, 6, QString()});
    par->addHoopBarSetting(new ORVCADColumnHoopBarSetting{1, 7, 9, 6, 4});
    return par.release(); // kept for the life of the process
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const ORVCADColumnHoopBarSettingPar *const par = catalogue();
    qint64 bPicture = 0;
    qint64 hPicture = 0;
    if (par->parseColumnCombLimbInfo(fuzz::textOf(data, size).toStdWString(), bPicture, hPicture))
        fuzz::require((bPicture == 7 || bPicture == 9) && (hPicture == 7 || hPicture == 9), "both pictures are told");
    return 0;
}
