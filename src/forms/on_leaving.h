#pragma once

#include <utility>

/// Runs an action when its scope is left, by whatever way. The action must not throw.
template <class Action>
class OnLeaving
{
public:
    explicit OnLeaving(Action leavingAction) : action(std::move(leavingAction)) {}
    OnLeaving(const OnLeaving&) = delete;
    OnLeaving& operator=(const OnLeaving&) = delete;
    ~OnLeaving() { action(); }

private:
    Action action;
};
