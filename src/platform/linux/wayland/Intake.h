#pragma once

#include "platform/linux/files/Descriptor.h"

#include <QByteArray>

namespace quillon {

/// The reading end of a pipe, and what has come out of it.
class Intake {
public:
    enum class State { waiting, grew, ended, failed };

    /// `limit` is in bytes; more than that is a failure.
    explicit Intake(qsizetype limit) : limit_{limit} {}

    /// Makes the pipe. Its writing end goes to the owner of the content; not open where the process
    /// may open no more files.
    [[nodiscard]] Descriptor open();

    [[nodiscard]] int descriptor() const { return end_.number(); }

    /// Takes what there is, without waiting for more.
    [[nodiscard]] State take();

    /// Everything so far.
    [[nodiscard]] QByteArray bytes();

private:
    qsizetype limit_;
    Descriptor end_;
    QByteArray bytes_; ///< with room for more behind the first `used_`
    qsizetype used_ = 0;
};

} // namespace quillon
