#pragma once

class QApplication;

namespace controls::style {

/// System is dark where the desktop is dark.
enum class Scheme { System, Light, Dark };

/// Sets the look of all forms: roomy controls, quiet colours, one accent colour. The dynamic property `role` gives a
/// widget its look: header (the band at the top of a form), title and subtitle (texts on it), heading and section
/// (titles in the body), muted (secondary text), panel (a raised surface).
void install(QApplication& application, Scheme scheme = Scheme::System);

} // namespace controls::style
