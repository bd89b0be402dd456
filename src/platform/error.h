#pragma once

#include <QString>
#include <expected>

namespace tamo {

// A failure at a file, store or parser boundary. `domain` and `code` identify it for callers and
// tests; `message` is the sentence shown to the user, `reason` an optional second sentence.
struct Error {
    QString domain;
    int code = 0;
    QString message;
    QString reason;

    QString text() const { return reason.isEmpty() ? message : message + u' ' + reason; }
};

template <typename T>
using Result = std::expected<T, Error>;

inline std::unexpected<Error> fail(QString domain, int code, QString message, QString reason = {})
{
    return std::unexpected(Error{std::move(domain), code, std::move(message), std::move(reason)});
}

}  // namespace tamo
