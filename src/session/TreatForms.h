#pragma once

// Navigation from form to form, by name: what is opened goes on a stack (PilaForm, CimaForm), what closes gives way to
// the one below. The company console is the bottom.

#include <string>

namespace vabo {

/// Shows a form; `ricorda` puts it on the stack. A name outside the table resets the stack and shows the console.
/// False where the form doesn't exist; then the stack is as it was.
bool ApriForm(const std::string& nome, bool ricorda);

/// A form's command that leads to another, which is remembered: where that one exists the first is hidden, and else it
/// stays, so that nobody is left before an empty screen.
void ApriDa(const std::string& form, const std::string& nome);

/// For the Unload of every form that was opened: the one below comes back.
void ChiudiForm();

/// Whether that form is on top of the stack, whatever its case. Leaves the top's name in Appoggio.
bool FormInCima(const std::string& nome);

/// The stack of a console just loaded: the console alone.
void AzzeraPilaForm();

} // namespace vabo
