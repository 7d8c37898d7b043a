#pragma once

#include <QString>
#include <string_view>

class QCoreApplication;

namespace tarnwick {

/// A text of the core as the user reads it: in his language, where the program speaks it.
///
/// The core speaks English, in sentences that it has put together of words and figures. They are looked up
/// line by line under the name "core", without the blanks around a line; the figures in it as %1, %2 and so
/// on. What no catalogue knows, as the name of a file, comes back as it stands.
[[nodiscard]] QString Translated(std::string_view text);

/// Lets the program and the toolkit speak the language of the desktop, if there is a file
/// tarnwick_LANGUAGE.qm of it among the program's own resources (:/translations) or beside the program.
void SpeakLanguageOf(QCoreApplication& application);

}  // namespace tarnwick
