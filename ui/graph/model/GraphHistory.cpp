#include "ui/graph/model/GraphHistory.h"

#include <QGuiApplication>

#include <utility>

namespace ZARN {

namespace {

constexpr int kPause = 400; // milliseconds
constexpr int kMostSteps = 200;

/// One step. What it was made from has it done already.
class Step : public QUndoCommand {
public:
    Step(const GraphHistory::Show& show, GraphView before, GraphView after)
        : mShow(show), mBefore(std::move(before)), mAfter(std::move(after))
    {
    }
    void undo() override { mShow(mAfter, mBefore); }
    void redo() override
    {
        if (std::exchange(mIsDone, false))
            return;
        mShow(mBefore, mAfter);
    }

private:
    const GraphHistory::Show& mShow;
    const GraphView mBefore, mAfter;
    bool mIsDone = true;
};

} // namespace

GraphHistory::GraphHistory(Read read, Show show) : mRead(std::move(read)), mShow(std::move(show))
{
    mStack.setUndoLimit(kMostSteps);
    mQuiet.setSingleShot(true);
    mQuiet.setInterval(kPause);
    connect(&mQuiet, &QTimer::timeout, this, &GraphHistory::slotQuiet);
}

void GraphHistory::begin()
{
    if (!mBefore)
        mBefore = mRead();
    mQuiet.start();
}

void GraphHistory::slotQuiet()
{
    // A hand that rests while it drags has not let go.
    if (QGuiApplication::mouseButtons() != Qt::NoButton)
        mQuiet.start();
    else
        end();
}

void GraphHistory::end()
{
    mQuiet.stop();
    const std::optional<GraphView> before = std::exchange(mBefore, std::nullopt);
    if (!before)
        return;
    GraphView after = mRead();
    if (after == *before)
        return;
    mStack.push(new Step(mShow, *before, std::move(after)));
    Q_EMIT signalStep();
}

void GraphHistory::undo()
{
    end();
    mStack.undo();
}

void GraphHistory::redo()
{
    end();
    mStack.redo();
}

void GraphHistory::clear()
{
    mQuiet.stop();
    mBefore.reset();
    mStack.clear();
}

} // namespace ZARN
