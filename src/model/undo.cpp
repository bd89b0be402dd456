#include "model/undo.h"

#include <QtGlobal>

namespace tamo {

namespace {
constexpr size_t kMaxGroups = 200;
}

void UndoManager::beginGroup(const QString& name)
{
    if (depth_++ == 0) {
        open_ = Group{name, {}};
    }
}

bool UndoManager::endGroup()
{
    Q_ASSERT(depth_ > 0);
    if (--depth_ > 0) {
        return false;
    }
    if (!open_.steps.empty()) {
        undoStack_.push_back(std::move(open_));
        redoStack_.clear();
        if (undoStack_.size() > kMaxGroups) {
            undoStack_.erase(undoStack_.begin());
        }
    }
    open_ = {};
    return true;
}

void UndoManager::record(Step step)
{
    if (replaying_ || disabled_ > 0) {
        return;
    }
    Q_ASSERT(depth_ > 0);
    open_.steps.push_back(std::move(step));
}

void UndoManager::undo()
{
    if (!canUndo() || depth_ > 0) {
        return;
    }
    Group group = std::move(undoStack_.back());
    undoStack_.pop_back();
    replaying_ = true;
    for (auto it = group.steps.rbegin(); it != group.steps.rend(); ++it) {
        it->undo();
    }
    replaying_ = false;
    redoStack_.push_back(std::move(group));
}

void UndoManager::redo()
{
    if (!canRedo() || depth_ > 0) {
        return;
    }
    Group group = std::move(redoStack_.back());
    redoStack_.pop_back();
    replaying_ = true;
    for (const Step& step : group.steps) {
        step.redo();
    }
    replaying_ = false;
    undoStack_.push_back(std::move(group));
}

void UndoManager::clear()
{
    undoStack_.clear();
    redoStack_.clear();
}

}  // namespace tamo
