#include "store/ParquetDataset.h"

#include "store/CycleIdentity.h"
#include "store/StoreText.h"

#include <algorithm>
#include <filesystem>

#include <unistd.h>

namespace ZARN {

namespace {

constexpr const char* kMadeBy = "zarn.made_by";    // the note that tells by what a cycle was worked out
constexpr const char* kSamples = "zarn.samples";   // that of the samples that are kept
constexpr const char* kProblems = "zarn.problems"; // and that of what was found wrong with it
constexpr const char* kSpan = "zarn.span";         // its first and last time
constexpr const char* kFiles = "zarn.files";       // that of the files of a card and their cycles
constexpr const char* kSamplesFolder = "samples";

constexpr std::size_t kLongestFolder = 255 - (sizeof "engine=" - 1);
constexpr std::size_t kHash = 16; // digits of it, after a name that was cut

/// As a part of a path, which readers of such folders decode. What no folder can be called in full is cut between two characters, and told
/// from others that begin alike by its hash.
std::string percentEncoded(const std::string& text)
{
    std::string encoded;
    std::size_t fits = 0;
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        const bool isFirst = (byte & 0xC0u) != 0x80u;
        if (isFirst && encoded.size() < kLongestFolder - kHash)
            fits = encoded.size();
        const bool isPlain = (byte >= '0' && byte <= '9') || (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') ||
                             character == '-' || character == '_' || character == '.';
        encoded += isPlain ? std::string(1, character) : QString::asprintf("%%%02X", byte).toStdString();
    }
    return encoded.size() <= kLongestFolder ? encoded : encoded.substr(0, fits) + "-" + hashOf(text).substr(0, kHash);
}

ParquetColumn::EType typeOf(EColumn type)
{
    switch (type) {
    case EColumn::eInteger: return ParquetColumn::eInteger;
    case EColumn::eReal: return ParquetColumn::eReal;
    case EColumn::eText:
    case EColumn::eId: break; // what workers that know nothing of each other can make unique
    }
    return ParquetColumn::eText;
}

std::vector<ParquetColumn> columnsOf(const StoreTable& table)
{
    std::vector<ParquetColumn> columns;
    for (const StoreColumn& column : table.columns)
        columns.push_back({column.name, typeOf(column.type)});
    return columns;
}

EParquetSamples samplesOf(const std::string& text)
{
    if (text == "100")
        return EParquetSamples::eTicks100;
    if (text == "10")
        return EParquetSamples::eTicks10;
    return text == "all" ? EParquetSamples::eAll : EParquetSamples::eNone;
}

/// The files of a card, a line each, with the cycles that they belong to. @param wholes for what is left of a cycle, the one that it was
std::string filesOf(const CardFacts& card, const std::map<std::string, CycleHead>& wholes)
{
    std::string text;
    for (std::size_t i = 0; i < card.listing.files.size(); ++i) {
        const ListedFile& file = card.listing.files[i];
        const auto found = std::ranges::find(card.heads, card.cycleOfFile[i], &CycleHead::id);
        if (found == card.heads.end())
            continue;
        const auto whole = wholes.find(found->id);
        const CycleHead& cycle = whole == wholes.end() ? *found : whole->second;
        text += storeText(file.name) + "\t" + std::to_string(file.size) + "\t" + cycle.id + "\t" + cycle.engine.id + "\t" +
                std::to_string(cycle.number) + "\t" + storeDate(cycle.dateTime) + "\t" + QByteArray::number(file.mtime, 'g', 17).toStdString() +
                "\n";
    }
    return text;
}

/// The lines of both texts, each once.
std::string joinedLines(const std::string& first, const std::string& second)
{
    QStringList lines = QString::fromStdString(first + second).split('\n', Qt::SkipEmptyParts);
    lines.removeDuplicates();
    return lines.isEmpty() ? std::string() : (lines.join('\n') + '\n').toStdString();
}

QDateTime dateOf(const QString& text)
{
    return QDateTime::fromString(text, Qt::ISODate);
}

/// A problem a line: the file, a tab and the reason.
std::string textOf(const std::vector<CardProblem>& problems)
{
    std::string text;
    for (const CardProblem& problem : problems)
        text += storeText(problem.file) + "\t" + problem.reason.toStdString() + "\n";
    return text;
}

std::vector<CardProblem> problemsIn(const std::string& text)
{
    std::vector<CardProblem> problems;
    for (const QString& line : QString::fromStdString(text).split('\n', Qt::SkipEmptyParts))
        problems.push_back({line.section('\t', 0, 0).toStdString(), line.section('\t', 1), false});
    return problems;
}

std::string makeFolderOf(const std::string& path)
{
    std::error_code error;
    const std::filesystem::path folder = std::filesystem::path(path).parent_path();
    std::filesystem::create_directories(folder, error);
    return error ? folder.string() + ": " + error.message() : std::string();
}

} // namespace

ParquetDataset::ParquetDataset(std::string folder, AnalysisKey key, DecodingContext context, std::string samples)
    : mFolder(std::move(folder)), mKey(std::move(key)), mContext(std::move(context)), mSamples(std::move(samples))
{
}

std::string ParquetDataset::prepare() const
{
    std::error_code error;
    std::filesystem::create_directories(mFolder, error);
    if (error)
        return mFolder + ": " + error.message();
    if (!std::filesystem::is_directory(mFolder, error))
        return mFolder + ": " + tr("it is no folder").toStdString();
    return ::access(mFolder.c_str(), W_OK | X_OK) == 0 ? std::string()
                                                       : mFolder + ": " + tr("it cannot be written, only read").toStdString();
}

std::string ParquetDataset::path(const std::string& table, const std::string& engine, const QDateTime& month, const std::string& name) const
{
    return mFolder + "/" + table + "/engine=" + percentEncoded(engine) +
           "/month=" + (month.isValid() ? month.toString("yyyy-MM").toStdString() : "none") + "/" + name + ".parquet";
}

std::string ParquetDataset::cyclePath(const std::string& table, const CycleHead& cycle, const QDateTime& month) const
{
    return path(table, cycle.engine.id, month, cycle.id);
}

ParquetFile::Notes ParquetDataset::notes(const std::vector<CardProblem>& problems) const
{
    return {{kMadeBy, std::to_string(AnalysisKey::kVersion) + " " + mKey.profileHash + " " + storeText(mKey.variant)},
            {kSamples, mSamples},
            {kProblems, textOf(problems)}};
}

bool ParquetDataset::hasCycle(const CycleHead& cycle, std::vector<CardProblem>& told)
{
    ParquetFile::Notes kept = ParquetFile::notesOf(cyclePath(storeTable(eCycleTable).folder, cycle, cycle.dateTime));
    const bool hasSamples = mSamples == kept[kSamples] || samplesOf(mSamples) == EParquetSamples::eNone;
    if (!hasSamples || kept[kMadeBy] != notes({}).at(kMadeBy))
        return false;
    told = problemsIn(kept[kProblems]);
    return true;
}

std::string ParquetDataset::takeLoaded(const CardListing& card, const CycleFacts& cycle, const CycleValues& values)
{
    const CycleHead& head = cycle.head;
    const RowIds ids{hashOf(card.path), [&head](EStoreTable, std::size_t place) { return head.id + "/" + std::to_string(place + 1); }};
    const CycleRows rows = cycleRows(cycle, mKey, ids);
    ParquetFile::Notes made = notes(cycle.problems);
    made[kSpan] = QByteArray::number(cycle.startTime, 'g', 17).toStdString() + " " + QByteArray::number(cycle.endTime, 'g', 17).toStdString();
    std::string problem;
    const EParquetSamples samples = samplesOf(mSamples);
    const std::string sampleFile = cyclePath(kSamplesFolder, head, head.dateTime);
    if (samples == EParquetSamples::eNone)
        ::unlink(sampleFile.c_str()); // those of another profile
    else
        problem = makeFolderOf(sampleFile);
    if (samples != EParquetSamples::eNone && problem.empty())
        problem = ParquetSamples(values, samples).write(sampleFile, made);
    for (int table = eStoreTables - 1; table >= eCycleTable && problem.empty(); --table) {
        const StoreTable& form = storeTable(static_cast<EStoreTable>(table));
        const std::string file = cyclePath(form.folder, head, head.dateTime);
        problem = makeFolderOf(file);
        if (!problem.empty())
            break;
        ParquetFile written(file, columnsOf(form));
        written.addRows(rows[static_cast<std::size_t>(table)]);
        problem = written.finish(made);
    }
    if (problem.empty())
        forgetUndated(head);
    return problem;
}

/// The date of a cycle without a clock of its own may become known from the file that follows it on the card.
void ParquetDataset::forgetUndated(const CycleHead& cycle) const
{
    if (cycle.dateTime.isValid())
        forgetFiles(cycle, {});
}

void ParquetDataset::forgetFiles(const CycleHead& cycle, const QDateTime& month) const
{
    for (int table = eCycleTable; table <= eStoreTables; ++table) {
        const std::string folder = table == eStoreTables ? kSamplesFolder : storeTable(static_cast<EStoreTable>(table)).folder;
        ::unlink(cyclePath(folder, cycle, month).c_str());
    }
}

/// Whether all of the time of a cycle is in another one, as far as both tell.
bool ParquetDataset::isCovered(const CycleHead& cycle, const CycleHead& other) const
{
    double spans[2][2];
    for (const auto& [pHead, place] : {std::pair(&cycle, 0), std::pair(&other, 1)}) {
        const std::string text = ParquetFile::notesOf(cyclePath(storeTable(eCycleTable).folder, *pHead, pHead->dateTime))[kSpan];
        const QStringList fields = QString::fromStdString(text).split(' ');
        if (fields.size() != 2)
            return true;
        spans[place][0] = fields[0].toDouble();
        spans[place][1] = fields[1].toDouble();
    }
    return spans[1][0] <= spans[0][0] && spans[1][1] >= spans[0][1];
}

/// A cycle one of whose files now belongs to another one was the beginning of that: a card that was read while it was copied. The file is the
/// same, or has grown, and then engine, number and date tell that the recording is the same. Or the card has lost a part of it since.
/// @return for what is left of a cycle, the whole one, which stays in its place
std::map<std::string, CycleHead> ParquetDataset::forgetParts(const CardFacts& card, const std::string& before) const
{
    const std::vector<ListedFile>& files = card.listing.files;
    std::map<std::string, CycleHead> wholes;
    std::map<std::string, std::map<std::string, int64_t>> sizes; // of the files of each cycle, by name
    std::vector<QStringList> lines;
    for (const QString& line : QString::fromStdString(before).split('\n', Qt::SkipEmptyParts)) {
        const QStringList fields = line.split('\t');
        if (fields.size() != 7)
            continue;
        lines.push_back(fields);
        sizes[fields[2].toStdString()][fields[0].toStdString()] = fields[1].toLongLong();
    }
    for (const QStringList& fields : lines) {
        CycleHead old;
        old.id = fields[2].toStdString();
        old.engine.id = fields[3].toStdString();
        old.number = fields[4].toUInt();
        old.dateTime = dateOf(fields[5]);
        if (std::ranges::find(card.cycleOfFile, old.id) != card.cycleOfFile.end())
            continue;
        for (std::size_t i = 0; i < files.size(); ++i) {
            const auto now = std::ranges::find(card.heads, card.cycleOfFile[i], &CycleHead::id);
            if (now == card.heads.end() || wholes.contains(now->id) || storeText(files[i].name) != fields[0].toStdString())
                continue;
            const bool isSame = files[i].size == fields[1].toLongLong() &&
                                (files[i].mtime == fields[6].toDouble() || holdsCycle(card.listing, sizes[old.id], old.id));
            const bool isGrown = files[i].size > fields[1].toLongLong() && now->engine.id == old.engine.id && now->number == old.number &&
                                 (!old.dateTime.isValid() || storeDate(now->dateTime) == fields[5].toStdString());
            if ((isSame || isGrown) && isCovered(old, *now)) {
                forgetFiles(old, old.dateTime);
            } else if (isSame && isCovered(*now, old)) {
                forgetFiles(*now, now->dateTime);
                wholes.emplace(now->id, old);
            }
        }
    }
    return wholes;
}

std::string ParquetDataset::problemPath(const std::string& engine, const std::string& card) const
{
    return path("problems", engine, {}, hashOf(card));
}

std::string ParquetDataset::forgetFailures(const std::vector<std::string>& folders)
{
    for (const std::string& folder : folders) {
        CardFacts facts;
        facts.listing.path = folder;
        facts.engineId = engineOfCard(nameOfCard(folder));
        facts.isWhole = false; // the files that it had as a card stay noted
        const std::string file = problemPath(facts.engineId, folder);
        if (::access(file.c_str(), F_OK) != 0)
            continue;
        if (ParquetFile::notesOf(file)[kFiles].empty())
            ::unlink(file.c_str());
        else if (const std::string problem = write(facts); !problem.empty())
            return problem;
    }
    return {};
}

std::string ParquetDataset::write(const CardFacts& card)
{
    const std::string id = hashOf(card.listing.path);
    const std::string file = problemPath(card.engineId, card.listing.path);
    if (const std::string unknown = problemPath(engineOfCard(card.name), card.listing.path); unknown != file)
        ::unlink(unknown.c_str()); // of a time when nothing could be read
    std::vector<Row> rows; // none as well, in place of those that it had before
    for (const CardProblem& problem : card.problems)
        rows.push_back({id, textOrNothing(storeText(problem.file)), problem.reason.toStdString(), storeText(card.listing.path)});
    std::ranges::sort(rows);
    const std::string problem = makeFolderOf(file);
    if (!problem.empty())
        return problem;
    ParquetFile::Notes before = ParquetFile::notesOf(file);
    std::map<std::string, CycleHead> wholes;
    if (card.isWhole)
        wholes = forgetParts(card, before[kFiles]);
    ParquetFile written(file, {{"card_id", ParquetColumn::eText},
                               {"file", ParquetColumn::eText},
                               {"reason", ParquetColumn::eText},
                               {"path", ParquetColumn::eText}});
    written.addRows(rows);
    return written.finish({{kFiles, card.isWhole ? filesOf(card, wholes) : joinedLines(before[kFiles], filesOf(card, wholes))}});
}

} // namespace ZARN
