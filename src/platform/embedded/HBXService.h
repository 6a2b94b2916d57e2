#pragma once

#include "platform/embedded/HBXCurState.h"
#include "platform/embedded/HBXModel.h"
#include "platform/host/IHBXService.h"

namespace hbx::embedded {

/** Front of the embedded host. */
class HBXService final : public IHBXService
{
public:
    HBXService(vks::CDatabase &database, HBXJournal &journal) : m_model(database, journal) {}

    HBXModel *model() override { return &m_model; }
    HBXCurState *curState() override { return &m_curState; }
    qint64 unnamedSetting() override { return 0; }

private:
    HBXModel m_model;
    HBXCurState m_curState;
};

} // namespace hbx::embedded
