#pragma once

#include "app/Setting.h"

/// Every setting of the program, with its default and its bounds: the only place that spells their names.
/// docs/formats/settings.md tells users the same.
namespace ZARN::Settings {

constexpr TextSetting kLocale = {"Locale", "us"};
constexpr NumberSetting kFontSize = {"FontSize", 12, 8, 20}; // pixels
constexpr NumberSetting kPalette = {"Palette", 0, 0, 2};     // light, dark, as the system
constexpr NumberSetting kUnit = {"Unit", 0, 0, 1};
constexpr TextSetting kProfile = {"Profile", "915"};
constexpr TextSetting kLastPath = {"LastPath", ""};
constexpr TextSetting kLastProjectPath = {"LastProjectPath", "."};

constexpr TextSetting kCsvExportDir = {"CsvExportDir", "."};
constexpr NumberSetting kCsvLimiter = {"CsvLimiter", ';', '\t', ';'};
constexpr NumberSetting kCsvResolution = {"CsvResolution", 100, 10, 100}; // milliseconds a row
constexpr SwitchSetting kCsvAllParameter = {"CsvAllParameter", true};
constexpr TextSetting kCsvLocale = {"CsvLocale", ""};
constexpr TextSetting kPictureDir = {"PictureDir", "."};
constexpr TextSetting kGpxExportDir = {"GpxExportDir", "."};
constexpr SwitchSetting kGpxTrackPerFlight = {"GpxTrackPerFlight", false};
constexpr TextSetting kReportDir = {"ReportDir", "."};

constexpr int kNoEnd = std::numeric_limits<int>::max();
constexpr TextSetting kKmlExportDir = {"KmlExportDir", "."};
constexpr NumberSetting kKmlTimeStamp = {"KmlTimeStamp", 1, 1, kNoEnd, EOutside::eNearest};
constexpr NumberSetting kKmlLineWidth = {"KmlLineWidth", 1, 0, kNoEnd, EOutside::eNearest};
constexpr TextSetting kKmlLineColor = {"KmlLineColor", "ff0000"};
constexpr NumberSetting kKmlLineAlpha = {"KmlLineAlpha", 255, 0, 255, EOutside::eNearest};
constexpr SwitchSetting kKmlPolygonOn = {"KmlPolygonOn", true};
constexpr TextSetting kKmlPolygonColor = {"KmlPolygonColor", "0000ff"};
constexpr NumberSetting kKmlPolygonAlpha = {"KmlPolygonAlpha", 100, 0, 255, EOutside::eNearest};
constexpr SwitchSetting kKmlPlaceMarkOn = {"KmlPlaceMarkOn", true};
// Spelt so in every settings file there is.
constexpr NumberSetting kKmlPlaceMarkInterval = {"KmlPlaceMarkIntervall", 10, 1, kNoEnd, EOutside::eNearest};
constexpr TextSetting kKmlPlaceMarkColor = {"KmlPlaceMarkColor", "ffcc00"};
constexpr SwitchSetting kKmlErrorMarkOn = {"KmlErrorMarkOn", true};
constexpr SwitchSetting kKmlShowLimit = {"KmlShowLimit", true};
constexpr SwitchSetting kKmlShowWarning = {"KmlShowWarning", true};
constexpr TextSetting kKmlErrorMarkColor = {"KmlErrorMarkColor", "ff0000"};
constexpr SwitchSetting kKmlTrack = {"KmlTrack", false};

constexpr NumberedSetting kRecentFolder = {"RecentFolder", 10};
constexpr TextSetting kWindowGeometry = {"WindowGeometry", ""};
constexpr TextSetting kWindowSplitter = {"WindowSplitter", ""};
constexpr TextSetting kWindowSideSplitter = {"WindowSideSplitter", ""};

constexpr TextSetting kTileServer = {"TileServer", ""};
constexpr TextSetting kMapTilesAllowed = {"MapTilesAllowed", ""};
constexpr TextSetting kMapTilePath = {"MapTilePath", ""};
constexpr SwitchSetting kMapOffline = {"MapOffline", false};
constexpr NumberSetting kMapCacheSize = {"MapCacheSize", 256, 16, 4096}; // MiB
constexpr NumberSetting kMapHighestZoom = {"MapHighestZoom", 19, 1, 22};
constexpr TextSetting kMapAttribution = {"MapAttribution", ""};
constexpr SwitchSetting kMapShowValues = {"MapShowValues", true};
constexpr SwitchSetting kMapShowProfile = {"MapShowProfile", true};
constexpr TextSetting kMapPathColour = {"MapPathColour", ""};
constexpr FractionSetting kMapShadingContrast = {"MapShadingContrast", 1.0};
constexpr FractionSetting kMapShadingBrightness = {"MapShadingBrightness", 1.0};
constexpr FractionSetting kMapShadingFactor = {"MapShadingFactor", 0.5};

constexpr NumberedSetting kGraphColor = {"GraphColor", 300};
constexpr NumberedSetting kGraphColorName = {"GraphColorName", 300};
constexpr NumberedSetting kGraphWidth = {"GraphWidth", 300};
constexpr NumberedSetting kGraphStyle = {"GraphStyle", 300};
constexpr NumberSetting kGraphPalette = {"GraphPalette", 0, 0, 3};
constexpr SwitchSetting kGraphGaps = {"GraphGaps", false};
constexpr SwitchSetting kGraphNormal = {"GraphNormal", false};
constexpr NumberSetting kTimeReference = {"TimeReference", 0, 0, 2};
constexpr TextSetting kGraphLayout = {"GraphLayout", ""};
constexpr TextSetting kLayoutDir = {"LayoutDir", ""};
constexpr SwitchSetting kParameterOnlyRecorded = {"ParameterOnlyRecorded", false};
constexpr SwitchSetting kGraphClickMovesCursor = {"GraphClickMovesCursor", false};

constexpr NumberSetting kLogbook = {"Logbook", 0, 0, 2}; // whether opened cards are taken in: not asked yet, yes, no
constexpr SwitchSetting kArchive = {"Archive", false};
constexpr TextSetting kArchiveDir = {"ArchiveDir", ""};
constexpr TextSetting kLogbookDir = {"LogbookDir", "."};
constexpr TextSetting kLogbookHidden = {"LogbookHidden", ""};

constexpr TextSetting kLiveBus = {"LiveBus", ""};
constexpr NumberSetting kLiveBitRate = {"LiveBitRate", 0, 0, 8000000}; // bits a second; 0: as the system has it
constexpr SwitchSetting kLiveListenOnly = {"LiveListenOnly", true};
constexpr TextSetting kLiveFolder = {"LiveFolder", ""};
constexpr NumberSetting kLiveHours = {"LiveHours", 2, 1, 48};

} // namespace ZARN::Settings
