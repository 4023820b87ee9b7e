#pragma once

// Navigation from form to form, by name. A form that is opened goes on a stack (PilaForm, CimaForm); when it closes,
// the one below is shown again. The company console is the bottom.

#include <string>

namespace vabo {

/// Shows a form; `ricorda` puts it on the stack. A name outside the table resets the stack and shows the console.
/// False where the form doesn't exist; then the stack is as it was.
bool ApriForm(const std::string& nome, bool ricorda);

/// Opens another form, which goes on the stack, and hides the one that asks for it. Where the other doesn't exist, the
/// asking form stays visible, since there would be no window left.
void ApriDa(const std::string& form, const std::string& nome);

/// Takes a form off the stack and shows the one below. To be called in the Unload of every form that is opened.
void ChiudiForm();

/// Whether that form is on top of the stack, whatever its case. Leaves the top's name in Appoggio.
bool FormInCima(const std::string& nome);

/// Sets the stack to the company console alone, as it is when the console is loaded.
void AzzeraPilaForm();

} // namespace vabo
