#include "export/KmlDocument.h"

#include "app/NumberText.h"
#include "export/KmlTracks.h"

#include <QColor>

#include <cstdio>

namespace ZARN {

namespace {

// Without the number sign of a reference within the document: globe viewers that know the files of this program look for these.
constexpr const char* kNormalStyle = "normalPlacemark";
constexpr const char* kErrorStyle = "errorPlacemark";
constexpr int kOpaque = 255;
constexpr uint64_t kPointsAStep = 1024; // of the path, between two reports of progress

/// The format wants opacity, blue, green, red, in hexadecimal digits.
std::string kmlColour(int alpha, const std::string& setting)
{
    const QColor colour(QString::fromStdString("#" + setting));
    char text[40];
    std::snprintf(text, sizeof text, "%02x%02x%02x%02x", static_cast<unsigned int>(alpha), static_cast<unsigned int>(colour.blue()),
                  static_cast<unsigned int>(colour.green()), static_cast<unsigned int>(colour.red()));
    return text;
}

/// Longitude, latitude and altitude. @param pOut room for three number texts. @return the end of the text.
char* writeCoordinates(char* pOut, const KmlPoint& point)
{
    constexpr int degreeDecimals = 8;
    pOut = writeFixed(pOut, point.longitude, degreeDecimals);
    *pOut++ = ',';
    pOut = writeFixed(pOut, point.latitude, degreeDecimals);
    *pOut++ = ',';
    return writeFixed(pOut, point.altitude, 1);
}

constexpr std::size_t kCoordinatesSize = 3 * kNumberTextSize + 3;

} // namespace

bool KmlDocument::write()
{
    countPieces();
    mWriter.declaration();
    const bool hasTracks = !mContent.tracks.tracks().empty();
    mWriter.begin("kml", std::string(" xmlns=\"http://www.opengis.net/kml/2.2\"") + (hasTracks ? KmlTracks::kNamespace : ""));
    mWriter.begin("Document");
    addData("name", "ZARN Flightpath " + mContent.date.toStdString());
    writeStyle(kNormalStyle, mOptions.placeMarkColor);
    writeStyle(kErrorStyle, mOptions.errorMarkColor);
    if (hasTracks)
        writeTrackStyle();
    writeParameterPlacemarks();
    writeEventPlacemarks(mContent.limits);
    writeEventPlacemarks(mContent.warnings);
    writePath();
    writeTracks();
    mWriter.end("Document");
    mWriter.end("kml");
    return mGoesOn;
}

void KmlDocument::countPieces()
{
    mPieces = mContent.placemarks.textCount() + mContent.limits.events().size() + mContent.warnings.events().size()
              + mContent.path.points().size();
    for (const PathTracks::Track& track : mContent.tracks.tracks())
        mPieces += track.points.size();
}

void KmlDocument::writeStyle(const char* name, const std::string& colour)
{
    mWriter.begin("Style", std::string(" id=\"") + name + "\"");
    mWriter.begin("LabelStyle");
    addData("color", "ffffffff");
    mWriter.end("LabelStyle");
    mWriter.begin("IconStyle");
    addData("color", kmlColour(kOpaque, colour));
    mWriter.end("IconStyle");
    mWriter.end("Style");
}

void KmlDocument::writeParameterPlacemarks()
{
    const int interval = mOptions.placeMarkInterval;
    mContent.placemarks.forEachSlot([&](int slot) {
        const KmlPoint* pPoint = mContent.path.at(saturatingCast<int>(static_cast<double>(slot) * interval));
        if (!pPoint || !isWanted(mGrid.seconds(slot, interval)))
            return true;
        beginPlacemark(mGrid.timeOfDay(slot, interval), mGrid.seconds(slot, interval), kNormalStyle);
        mContent.placemarks.forEachText([&](const Trace& trace, const std::string& text) { writeValue(trace.name(), text, trace.unit()); });
        endPlacemark(*pPoint);
        mDone = mContent.placemarks.textsDone();
        return step();
    });
    mDone = mContent.placemarks.textCount();
}

void KmlDocument::writeEventPlacemarks(const EventList& list)
{
    for (const Event& event : list.events()) {
        ++mDone;
        if (!mGoesOn || !step())
            return;
        if (!isWanted(event.time))
            continue;
        const int slot = mGrid.slot(event.time);
        const KmlPoint* pPoint = mContent.path.at(slot);
        if (!pPoint)
            return;
        const EventSource& source = list.source(event);
        beginPlacemark(mGrid.timeOfDay(slot), event.time, kErrorStyle);
        writeValue(source.parameter, event.value, source.unit);
        endPlacemark(*pPoint);
    }
}

void KmlDocument::beginPlacemark(const std::string& title, double seconds, const char* style)
{
    mWriter.begin("Placemark");
    addData("name", title);
    if (const std::string clock = mContent.tracks.clock(seconds); !clock.empty()) {
        mWriter.begin("TimeStamp");
        addData("when", clock);
        mWriter.end("TimeStamp");
    }
    addData("styleUrl", style);
    mWriter.begin("ExtendedData");
}

void KmlDocument::writeValue(const std::string& name, const std::string& value, const std::string& unit)
{
    mWriter.begin("Data");
    addData("displayName", "<b>" + name + "</b>"); // viewers take the text for markup
    addData("value", unit.empty() ? value : value + " [" + unit + "]");
    mWriter.end("Data");
}

void KmlDocument::endPlacemark(const KmlPoint& point)
{
    char coordinates[kCoordinatesSize];
    mWriter.end("ExtendedData");
    mWriter.begin("Point");
    addData("altitudeMode", "absolute");
    addData("coordinates", {coordinates, writeCoordinates(coordinates, point)});
    mWriter.end("Point");
    mWriter.end("Placemark");
}

void KmlDocument::writeLineStyle()
{
    mWriter.begin("LineStyle");
    addData("color", kmlColour(mOptions.lineAlpha, mOptions.lineColor));
    addData("width", std::to_string(mOptions.lineWidth));
    mWriter.end("LineStyle");
}

void KmlDocument::writeTrackStyle()
{
    mWriter.begin("Style", std::string(" id=\"") + KmlTracks::kStyle + "\"");
    writeLineStyle();
    mWriter.end("Style");
}

void KmlDocument::writeTracks()
{
    KmlTracks tracks(mContent.tracks, mOptions.timeStamp, mWriter);
    for (const PathTracks::Track& track : mContent.tracks.tracks()) {
        if (mGoesOn)
            tracks.write(track);
        mDone += track.points.size();
        step();
    }
}

void KmlDocument::writePath()
{
    mWriter.begin("Placemark");
    mWriter.begin("Style");
    writeLineStyle();
    mWriter.begin("PolyStyle");
    addData("color", kmlColour(mOptions.polygonAlpha, mOptions.polygonColor));
    mWriter.end("PolyStyle");
    mWriter.end("Style");
    mWriter.begin("LineString");
    addData("extrude", mOptions.polygonOn ? "1" : "0");
    addData("altitudeMode", "absolute");
    mWriter.beginPlain("coordinates");
    char line[kCoordinatesSize];
    for (const KmlPoint& point : mContent.path.points()) {
        if (++mDone % kPointsAStep == 0 && mGoesOn)
            step();
        if (!mGoesOn)
            break;
        if (!isWanted(mGrid.seconds(point.slot)))
            continue;
        char* pEnd = writeCoordinates(line, point);
        *pEnd++ = '\n';
        mWriter.plain({line, pEnd});
    }
    mWriter.endPlain("coordinates");
    mWriter.end("LineString");
    mWriter.end("Placemark");
}

} // namespace ZARN
