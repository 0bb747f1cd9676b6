#pragma once

#include <QByteArray>
#include <QFuture>

#include <cstddef>
#include <optional>

/// What a command is handed on standard input to be sent.
namespace quillon::StandardInput {

/// Gives a process that was started without standard input (`<&-`) an empty one, since the next
/// file that is opened would take its place.
void ensure();

/// Whether somebody has given this process content on standard input without saying so: it is a
/// pipe or a regular file. Everything else leaves `quillon send` to the clipboard: a terminal, the
/// /dev/null of desktops, systemd and services, and a socket, which is what a whole session that
/// was started over the network, or by a program that speaks to its children by sockets, hands
/// down to the command of each of its key bindings. A pipe counts as content though it be empty,
/// for the clipboard must not go out in place of a command's output that failed to come. The
/// exception are the pipes that some launchers make to whatever they start, and never use: nothing
/// comes for a second, not even the end, and it is the process that started this one, or one that
/// led to it, that would have to write it, as with no pipe that a shell makes between two commands.
[[nodiscard]] bool isContent();

/// Reads standard input to its end, or `limit` bytes of it, and puts a file in memory that holds
/// these in its place: for whoever reads it from then on, without waiting, here or in the program
/// that it is handed to. False when it cannot be read.
[[nodiscard]] bool hold(std::size_t limit);

/// The first `limit` bytes of the regular file behind this descriptor, read on another thread; the
/// descriptor may be closed meanwhile. None for any other file, which could make the reader wait.
[[nodiscard]] QFuture<std::optional<QByteArray>> held(int file, qsizetype limit);

} // namespace quillon::StandardInput
