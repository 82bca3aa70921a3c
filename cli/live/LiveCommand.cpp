#include "cli/live/LiveCommand.h"

#include "app/FileName.h"
#include "app/Progress.h"
#include "cli/CardCommand.h"
#include "cli/JsonWriter.h"

#include <csignal>
#include <cstdio>

#include <unistd.h>

namespace ZARN {

namespace {

constexpr int kLookPeriod = 50; // milliseconds, for the end
constexpr unsigned int kUsualBitRate = 1'000'000;

volatile std::sig_atomic_t isInterrupted = 0;

void interrupt(int /*signal*/)
{
    isInterrupted = 1;
}

std::string troubleText(const LiveCounts& counts)
{
    return countedText(counts.errors, "error", "errors") + ", " + countedText(counts.losses, "loss", "losses") + ", " +
           std::to_string(counts.remote) + " remote, " + std::to_string(counts.fd) + " FD";
}

} // namespace

int LiveCommand::work()
{
    int count = 1;
    char name[] = "zarn-cli";
    char* arguments[] = {name, nullptr};
    const QCoreApplication application(count, arguments);
    std::signal(SIGINT, &interrupt);
    std::signal(SIGTERM, &interrupt);
    QString problem;
    const BusAddress address = BusAddress::parse(QString::fromStdString(mBus), problem);
    if (!problem.isEmpty()) { // what is none, or one of a plugin that is not here
        say(problem.toStdString());
        return address.plugin.isEmpty() || address.interface.isEmpty() ? eWrongCall : eFailed;
    }
    return isGiven("--replay") ? replay(address) : listen(address);
}

void LiveCommand::endInTime(QTimer& timer, const std::function<void()>& end) const
{
    QElapsedTimer elapsed;
    elapsed.start();
    QObject::connect(&timer, &QTimer::timeout, [this, elapsed, end] {
        if (isInterrupted != 0 || (isGiven("--seconds") && static_cast<double>(elapsed.nsecsElapsed()) * 1e-9 >= mSeconds))
            end();
    });
    timer.start(kLookPeriod);
}

int LiveCommand::listen(const BusAddress& address)
{
    if (isGiven("--record")) {
        mpRecorder = std::make_unique<LiveRecorder>(decodeFileName(mFolder));
        if (!mpRecorder->open())
            return fail(mpRecorder->error().toStdString());
    }
    mpLink = std::make_unique<BusLink>(address, static_cast<int>(mBitRate));
    QObject::connect(mpLink.get(), &BusLink::received, [this](const LiveRecords& records) { take(records); });
    QObject::connect(mpLink.get(), &BusLink::stateChanged, [this](BusLink::EState state, const QString& reason) {
        mWasConnected |= state == BusLink::eConnected;
        if (!reason.isEmpty())
            say(mBus + ": " + reason.toStdString() + "; it is tried again");
    });
    QElapsedTimer elapsed;
    elapsed.start();
    QTimer look;
    endInTime(look, &QCoreApplication::quit);
    QTimer second;
    QObject::connect(&second, &QTimer::timeout, [this] { tellCounts(); });
    if (::isatty(STDERR_FILENO) != 0)
        second.start(1000);
    mpLink->open();
    QCoreApplication::exec();
    mpLink->close();
    if (mpRecorder && mpRecorder->isOpen() && !mpRecorder->close()) {
        mIsFailed = true;
        fail(mpRecorder->error().toStdString());
    }
    return tellEnd(static_cast<double>(elapsed.nsecsElapsed()) * 1e-9);
}

void LiveCommand::take(const LiveRecords& records)
{
    if (!mpRecorder || !mpRecorder->isOpen() || mpRecorder->append(records, QDateTime::currentDateTimeUtc()))
        return;
    mIsFailed = true;
    fail(mpRecorder->error().toStdString() + "; nothing more is recorded");
}

void LiveCommand::tellCounts()
{
    const LiveCounts& counts = mpLink->counts();
    const unsigned int bitRate = mBitRate > 0 ? mBitRate : kUsualBitRate;
    std::string line = countedText(counts.frames, "frame", "frames") + ", " + std::to_string(counts.frames - mTold.frames) + " a second, load " +
                       tableNumber(static_cast<double>(counts.bits - mTold.bits) * 100 / bitRate, 0) + " %, " + troubleText(counts);
    if (mpLink->state() != BusLink::eConnected)
        line += ", not connected";
    else if (const QString status = mpLink->busStatus(); !status.isEmpty())
        line += ", bus " + status.toStdString();
    if (mpRecorder)
        line += ", " + std::to_string(mpRecorder->recorded()) + " recorded";
    mTold = counts;
    std::fprintf(stderr, "%s\n", line.c_str());
}

int LiveCommand::tellEnd(double seconds) const
{
    const LiveCounts& counts = mpLink->counts();
    const uint64_t recorded = mpRecorder ? mpRecorder->recorded() : 0;
    if (!mWasConnected)
        return fail(mBus + ": never connected");
    int status = eDone;
    if (mJson) {
        JsonWriter json;
        const auto number = [&json](const char* name, uint64_t count) { json.member(name, static_cast<int64_t>(count)); };
        json.beginAnswer().member("bus", mBus).member("seconds", seconds);
        number("frames", counts.frames);
        number("errors", counts.errors);
        number("losses", counts.losses);
        number("remote", counts.remote);
        number("fd", counts.fd);
        number("recorded", recorded);
        status = print(json.endAnswer());
    } else {
        status = print(countedText(counts.frames, "frame", "frames") + " in " + tableNumber(seconds, 1) + " s, " + troubleText(counts) +
                       (mpRecorder ? ", " + std::to_string(recorded) + " recorded" : "") + "\n");
    }
    return mIsFailed ? static_cast<int>(eFailed) : status;
}

int LiveCommand::replay(const BusAddress& address)
{
    Profile profile(console());
    CardContainer container(console(), profile.context(), nullProgress());
    container.setPathWanted(false);
    const std::optional<unsigned int> chosen = isGiven("--cycle") ? std::optional(mCycle) : std::nullopt;
    std::string problem = openContainer(container, mCard, chosen);
    if (problem.empty() && !container.loadCycle(chosen.value_or(container.recordCycles().begin()->first), -1))
        problem = mCard + ": the cycle cannot be loaded";
    if (problem.empty())
        problem = container.loadError().empty() ? systemProblem(container) : container.loadError();
    if (!problem.empty())
        return fail(problem);
    RecordSender sender(container.recordData(), mSpeed);
    QString ended;
    QObject::connect(&sender, &RecordSender::finished, [&ended](const QString& reason) {
        ended = reason;
        QCoreApplication::quit();
    });
    if (const QString refused = sender.open(address); !refused.isEmpty())
        return fail(refused.toStdString());
    QTimer look;
    endInTime(look, [&sender] { sender.stop(); });
    QCoreApplication::exec();
    if (!ended.isEmpty())
        return fail(mBus + ": " + ended.toStdString());
    if (sender.leftOut() > 0)
        say(mCard + ": records left out, since no frame has their identifier: " + std::to_string(sender.leftOut()));
    return print(std::to_string(sender.sent()) + " of " + countedText(sender.count(), "frame", "frames") + " sent\n");
}

} // namespace ZARN
