#pragma once

#include <QByteArray>

/// The permission to come to the front that a launcher gives to a program it starts, and the
/// desktop's panel to the program whose icon is clicked. It is a text in the environment, where
/// Qt's Wayland part looks for it when a window asks for the focus. It is this program's, not that
/// of programs it will start.
namespace quillon::ActivationToken {

/// Takes the launcher's permission out of the environment. On Wayland it is kept for the first
/// window; an X server's window manager needs none. To be called after the application object has
/// been made, which uses it itself on X.
void takeFromLauncher();

/// Keeps a later permission in its place, as from a shortcut or another process; an empty one
/// changes nothing.
void keep(const QByteArray& token);

/// Has the next window that asks for the focus use the permission. One that has come into the
/// environment since, as with a click on the icon, comes first.
void offer();

/// Takes out of the environment what no window has used.
void withdraw();

} // namespace quillon::ActivationToken
