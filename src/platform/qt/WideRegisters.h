#pragma once

class QCoreApplication;

namespace tarnwick {

/// Gives the upper halves of the processor's wide registers back.
///
/// Qt 6.4 leaves them in use behind every fill of pixels on processors with AVX. Plain floating-point code,
/// all of ours, is then held up by them at each instruction and takes two to four times as long, until
/// somebody gives them back. Costs next to nothing, and does nothing on other processors.
void ReleaseWideRegisters();

/// Does so ahead of every event of the program: what a key or a click starts is not held up by the painting
/// before it.
void ReleaseWideRegistersForEvents(QCoreApplication& application);

}  // namespace tarnwick
