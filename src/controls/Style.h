#pragma once

class QApplication;

namespace controls::style {

/// System takes dark where the desktop is dark.
enum class Scheme { System, Light, Dark };

/// The look of all forms: roomy controls, quiet colours, one accent. Controls take a part in it by their dynamic
/// property `role`: header (the band of a form), title and subtitle (texts on it), heading and section (titles in the
/// body), muted (what is read once), panel (a raised surface).
void install(QApplication& application, Scheme scheme = Scheme::System);

} // namespace controls::style
