#include "ui/graph/model/GraphCommands.h"

#include "ui/graph/model/ValueZoom.h"

namespace ZARN {

namespace {

constexpr float kDefaultRange = 60.0F; // seconds

} // namespace

void GraphCommands::run(EGraphCommand command, bool isChecked)
{
    switch (command) {
    case eZoomAll:
        mRecord.zoomAll();
        mModel.settings().xRange = mRecord.span().end - mRecord.span().start;
        break;
    case eZoomMarker: mModel.zoomToMarker(); break;
    case eClearAll: mRecord.clear(); break;
    case eAutomaticMode:
        mModel.settings().graphMode = isChecked ? eAutomatic : eManual;
        mModel.settingsChanged();
        break;
    case eSplitMode: setDisplayMode(eSplit); break;
    case eSingleMode: setDisplayMode(eSingleGraph); break;
    case eFitValues: ValueZoom(mModel).toggleFit(); break;
    case eWholeValues: ValueZoom(mModel).showAll(); break;
    case eSharedScale: ValueZoom(mModel).setShared(!mModel.settings().scale.isShared); break;
    case eResetAll:
        ValueZoom(mModel).showAll();
        setDisplayMode(eSplit);
        mRecord.setRange(kDefaultRange);
        mRecord.showTime(mModel.cursor().time);
        break;
    default: break;
    }
}

bool GraphCommands::hold(EGraphCommand command)
{
    if (command != eZoomIn && command != eZoomOut)
        return false;
    mRecord.setRange(mModel.window().widthZoomed(command == eZoomIn));
    return true;
}

void GraphCommands::setDisplayMode(eDisplayMode mode)
{
    mModel.settings().displayMode = mode;
    mModel.settingsChanged();
}

} // namespace ZARN
