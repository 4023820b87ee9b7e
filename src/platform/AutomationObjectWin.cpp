#include "ado/Error.h"
#include "platform/AutomationObject.h"

#include <QString>

#include <windows.h>

#include <algorithm>
#include <oaidl.h>
#include <oleauto.h>
#include <utility>

namespace platform {

namespace {

constexpr int kObjectRequired = 424;
constexpr int kCannotCreateObject = 429;
constexpr int kNoSuchMember = 438;
constexpr int kAutomationError = 440;

std::wstring wide(const std::string& text) {
    return QString::fromStdString(text).toStdWString();
}

class Variant {
public:
    Variant() { VariantInit(&value); }
    explicit Variant(const AutomationObject::Argument& argument) : Variant() {
        if (const auto* truth = std::get_if<bool>(&argument)) {
            value.vt = VT_BOOL;
            value.boolVal = *truth ? VARIANT_TRUE : VARIANT_FALSE;
        } else if (const auto* number = std::get_if<int>(&argument)) {
            value.vt = VT_I4;
            value.lVal = *number;
        } else {
            value.vt = VT_BSTR;
            value.bstrVal = SysAllocString(wide(std::get<std::string>(argument)).c_str());
        }
    }
    ~Variant() { VariantClear(&value); }
    Variant(const Variant&) = delete;
    Variant& operator=(const Variant&) = delete;

    VARIANT value{};
};

/// What the application tells of a failure. Its number counts from the facility's beginning on.
ado::Error failure(HRESULT result, EXCEPINFO& told) {
    constexpr unsigned kNumberBits = 0xffff;
    int number = kAutomationError;
    QString words = QStringLiteral("Automation error");
    if (result == DISP_E_UNKNOWNNAME) {
        number = kNoSuchMember;
        words = QStringLiteral("Object doesn't support this property or method");
    } else if (result == DISP_E_EXCEPTION) {
        if (told.pfnDeferredFillIn != nullptr) {
            told.pfnDeferredFillIn(&told);
        }
        number = told.wCode != 0 ? told.wCode : static_cast<int>(static_cast<unsigned>(told.scode) & kNumberBits);
        if (told.bstrDescription != nullptr) {
            words = QString::fromWCharArray(told.bstrDescription);
        }
    }
    SysFreeString(told.bstrSource);
    SysFreeString(told.bstrDescription);
    SysFreeString(told.bstrHelpFile);
    return ado::Error(number, words.toStdString());
}

/// An application that is at work, or shows a box, rejects calls.
bool isBusy(HRESULT answer) {
    return answer == RPC_E_CALL_REJECTED || answer == RPC_E_SERVERCALL_RETRYLATER;
}

void invoke(IDispatch& object, const std::string& member, WORD kind, DISPPARAMS parameters, Variant& result) {
    constexpr int kMostTries = 300;
    constexpr DWORD kPause = 100; // milliseconds
    std::wstring name = wide(member);
    OLECHAR* names = name.data();
    EXCEPINFO told{};
    HRESULT answer = RPC_E_CALL_REJECTED;
    for (int tries = 0; tries < kMostTries && isBusy(answer); ++tries) {
        Sleep(tries == 0 ? 0 : kPause);
        DISPID id = DISPID_UNKNOWN;
        answer = object.GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id); // a call like any other
        if (SUCCEEDED(answer)) {
            answer = object.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters, &result.value, &told, nullptr);
        }
    }
    if (FAILED(answer)) {
        throw failure(answer, told);
    }
}

void invoke(IDispatch& object, const std::string& member, WORD kind,
            const std::vector<AutomationObject::Argument>& arguments, Variant& result) {
    const std::vector<Variant> values(arguments.rbegin(), arguments.rend()); // the last argument comes first
    std::vector<VARIANT> raw;
    std::ranges::transform(values, std::back_inserter(raw), [](const Variant& each) { return each.value; });
    invoke(object, member, kind, DISPPARAMS{raw.data(), nullptr, static_cast<UINT>(raw.size()), 0}, result);
}

void assign(IDispatch& object, const std::string& property, WORD kind, VARIANT& value) {
    DISPID named = DISPID_PROPERTYPUT;
    Variant ignored;
    invoke(object, property, kind, DISPPARAMS{&value, &named, 1, 1}, ignored);
}

void convert(Variant& value, VARTYPE type) {
    if (FAILED(VariantChangeType(&value.value, &value.value, 0, type))) {
        throw ado::Error(kAutomationError, "Automation error");
    }
}

} // namespace

void AutomationObject::Release::operator()(IDispatch* object) const {
    object->Release();
}

AutomationObject::AutomationObject(const std::string& progId) {
    CLSID id{};
    void* made = nullptr;
    if (FAILED(CLSIDFromProgID(wide(progId).c_str(), &id)) ||
        FAILED(CoCreateInstance(id, nullptr, CLSCTX_SERVER, IID_IDispatch, &made))) {
        throw ado::Error(kCannotCreateObject, "ActiveX component can't create object");
    }
    object_.reset(static_cast<IDispatch*>(made));
}

bool AutomationObject::isLibrary(const std::string& progId) {
    CLSID id{};
    void* factory = nullptr;
    if (FAILED(CoInitialize(nullptr))) {
        return false;
    }
    const bool found = SUCCEEDED(CLSIDFromProgID(wide(progId).c_str(), &id)) &&
                       SUCCEEDED(CoGetClassObject(id, CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory, &factory));
    if (found) {
        static_cast<IClassFactory*>(factory)->Release();
    }
    CoUninitialize();
    return found;
}

void AutomationObject::call(const std::string& member, const std::vector<Argument>& arguments) const {
    Variant ignored;
    invoke(*object_, member, DISPATCH_METHOD, arguments, ignored);
}

void AutomationObject::put(const std::string& property, const Argument& value) const {
    Variant given(value);
    assign(*object_, property, DISPATCH_PROPERTYPUT, given.value);
}

void AutomationObject::put(const std::string& property, const AutomationObject& value) const {
    VARIANT given{};
    given.vt = VT_DISPATCH;
    given.pdispVal = value.object_.get();
    assign(*object_, property, DISPATCH_PROPERTYPUTREF, given);
}

AutomationObject AutomationObject::object(const std::string& property, const std::vector<Argument>& index) const {
    Variant found;
    invoke(*object_, property, DISPATCH_PROPERTYGET | DISPATCH_METHOD, index, found);
    if (found.value.vt != VT_DISPATCH || found.value.pdispVal == nullptr) {
        throw ado::Error(kObjectRequired, "Object required");
    }
    found.value.vt = VT_EMPTY; // it belongs to the new object
    return AutomationObject(found.value.pdispVal);
}

int AutomationObject::number(const std::string& property) const {
    Variant found;
    invoke(*object_, property, DISPATCH_PROPERTYGET, std::vector<Argument>{}, found);
    convert(found, VT_I4);
    return found.value.lVal;
}

std::optional<std::string> AutomationObject::text(const std::string& property) const {
    Variant found;
    invoke(*object_, property, DISPATCH_PROPERTYGET, std::vector<Argument>{}, found);
    if (found.value.vt == VT_NULL || found.value.vt == VT_EMPTY) {
        return std::nullopt;
    }
    convert(found, VT_BSTR);
    return QString::fromWCharArray(found.value.bstrVal).toStdString();
}

} // namespace platform
