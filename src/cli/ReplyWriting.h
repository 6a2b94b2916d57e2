#pragma once

#include "cli/Applied.h"
#include "cli/Message.h"
#include "cli/Progress.h"
#include "platform/embedded/HBXProject.h"
#include "platform/host/HBXBatch.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXService.h"

namespace orvcad {

/** Writes the sound members of a reply into a project, between the brackets of one batch, and tells what came of it.
 *  Nothing is saved.
 *  @tparam Outcome  has members, leftOut and doubled, which are filled here
 *  @tparam Writer   made of project and outcome; its write() takes one member and keeps account of it, its
 *                  finish() comes behind the last one
 *  @param check     has memberCount(), leftOut() and sound() */
template <typename Outcome, typename Writer, typename Check>
Outcome writeSound(hbx::embedded::HBXProject &project, const Check &check, const char *batchKey)
{
    IHBXModel &model = *project.service()->model();
    Outcome outcome;
    outcome.members = check.memberCount();
    outcome.leftOut = check.leftOut();
    const int drawObjsBefore = model.drawObjects()->count();
    const HBXBatch batch(model, batchKey);
    Writer writer(project, outcome);
    Progress progress(Message::tr("members"), static_cast<int>(check.sound().size()));
    for (const auto &member : check.sound()) {
        writer.write(member);
        progress.step();
    }
    writer.finish();
    outcome.doubled = doubledSince(model, drawObjsBefore);
    return outcome;
}

} // namespace orvcad
