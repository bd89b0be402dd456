#pragma once

#include <QString>
#include <functional>
#include <vector>

namespace tamo {

// Undo and redo of grouped changes. A group collects the steps of one user action; undoing it
// reverts its steps in reverse order.
class UndoManager {
public:
    struct Step {
        std::function<void()> undo;
        std::function<void()> redo;
    };

    bool canUndo() const { return !undoStack_.empty(); }
    bool canRedo() const { return !redoStack_.empty(); }
    QString undoActionName() const { return canUndo() ? undoStack_.back().name : QString(); }
    QString redoActionName() const { return canRedo() ? redoStack_.back().name : QString(); }

    bool isEnabled() const { return disabled_ == 0; }
    void disable() { ++disabled_; }
    void enable() { --disabled_; }
    bool isGrouping() const { return depth_ > 0; }
    bool isReplaying() const { return replaying_; }

    void beginGroup(const QString& name);
    // Returns true when the outermost group closed.
    bool endGroup();
    void record(Step step);

    void undo();
    void redo();
    void clear();

private:
    struct Group {
        QString name;
        std::vector<Step> steps;
    };
    std::vector<Group> undoStack_;
    std::vector<Group> redoStack_;
    Group open_;
    int depth_ = 0;
    int disabled_ = 0;
    bool replaying_ = false;
};

}  // namespace tamo
