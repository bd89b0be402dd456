#pragma once

#include <QDateTime>

namespace tamo {

// Every "now" of the application comes from a clock, so that date rules can be tested.
class Clock {
public:
    virtual ~Clock() = default;
    virtual QDateTime now() const = 0;
};

class SystemClock final : public Clock {
public:
    QDateTime now() const override { return QDateTime::currentDateTime(); }
};

class FixedClock final : public Clock {
public:
    explicit FixedClock(QDateTime at) : at_(std::move(at)) {}
    QDateTime now() const override { return at_; }
    void set(QDateTime at) { at_ = std::move(at); }
    void advance(qint64 seconds) { at_ = at_.addSecs(seconds); }

private:
    QDateTime at_;
};

}  // namespace tamo
