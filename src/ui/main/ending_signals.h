#pragma once

#include <QObject>
#include <functional>

namespace loquitor {

/// Calls `zHandler` from the event loop, as long as `zContext` lives, when the system or the
/// terminal asks the program to end. SIGTERM, SIGINT and SIGHUP no longer end it by themselves. A
/// signal that was ignored when the program started stays ignored, as nohup expects. To be called
/// once. Does nothing on systems without these signals, or when there are no file descriptors left.
void HandleEndingSignals(QObject* zContext, std::function<void()> zHandler);

}  // namespace loquitor
