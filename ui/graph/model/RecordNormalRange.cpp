#include "ui/graph/model/RecordNormalRange.h"

#include "app/Property.h"
#include "app/Settings.h"
#include "trace/Trace.h"
#include "ui/graph/model/NormalRange.h"

#include <utility>

namespace ZARN {

void RecordNormalRange::set(std::vector<NormalBand> bands)
{
    mBands = std::move(bands);
    fill();
}

void RecordNormalRange::setOn(bool on)
{
    mModel.settings().normalOn = on;
    Settings::kGraphNormal.set(mProperty, on);
    mProperty.writeXmlFile();
    fill();
}

void RecordNormalRange::setCourse(const std::shared_ptr<const CycleCourse>& pCourse)
{
    mModel.scenery().setCourse(pCourse);
    fill();
}

void RecordNormalRange::fill()
{
    const CycleCourse* pCourse = mModel.settings().normalOn ? mModel.scenery().course().get() : nullptr;
    mForEach([&](int slot, const Trace& trace) {
        std::vector<NormalStretch> normal;
        if (pCourse)
            normal = normalStretches(mBands, pCourse->phases, pCourse->figured, trace);
        mModel.traces().edit(slot, [&normal](GraphParameter& parameter) { parameter.normal = std::move(normal); });
    });
}

} // namespace ZARN
