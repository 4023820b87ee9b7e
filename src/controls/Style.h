#pragma once

class QApplication;
class QString;
class QWidget;

namespace controls::style {

/// System takes dark where the desktop is dark.
enum class Scheme { System, Light, Dark };

/// The look of all forms: roomy controls, quiet colours, one accent. Controls take a part in it by their dynamic
/// property `role`: header (the band at the top of a form), title and subtitle (texts on it), section (the title over a
/// group), muted (what is read once), panel (a raised surface), primary (the one button of the usual next step).
void install(QApplication& application, Scheme scheme = Scheme::System);

/// A label of more than one line that keeps what it needs of height.
inline constexpr int kMargin = 24;
inline constexpr int kSpacing = 12;

} // namespace controls::style
