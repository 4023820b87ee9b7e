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
    if (result == DISP_E_EXCEPTION) {
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

DISPID idOf(IDispatch& object, const std::string& member) {
    std::wstring name = wide(member);
    OLECHAR* names = name.data();
    DISPID id = DISPID_UNKNOWN;
    if (FAILED(object.GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id))) {
        throw ado::Error(kNoSuchMember, "Object doesn't support this property or method");
    }
    return id;
}

void invoke(IDispatch& object, const std::string& member, WORD kind, DISPPARAMS& parameters, Variant& result) {
    EXCEPINFO told{};
    const HRESULT answer = object.Invoke(idOf(object, member), IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters,
                                         &result.value, &told, nullptr);
    if (FAILED(answer)) {
        throw failure(answer, told);
    }
}

void read(IDispatch& object, const std::string& property, Variant& result) {
    DISPPARAMS none{};
    invoke(object, property, DISPATCH_PROPERTYGET, none, result);
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

void AutomationObject::call(const std::string& member, const std::vector<Argument>& arguments) const {
    const std::vector<Variant> values(arguments.rbegin(), arguments.rend()); // the last argument comes first
    std::vector<VARIANT> raw;
    std::ranges::transform(values, std::back_inserter(raw), [](const Variant& each) { return each.value; });
    DISPPARAMS parameters{raw.data(), nullptr, static_cast<UINT>(raw.size()), 0};
    Variant ignored;
    invoke(*object_, member, DISPATCH_METHOD, parameters, ignored);
}

void AutomationObject::put(const std::string& property, const Argument& value) const {
    Variant given(value);
    DISPID named = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{&given.value, &named, 1, 1};
    EXCEPINFO told{};
    const HRESULT answer = object_->Invoke(idOf(*object_, property), IID_NULL, LOCALE_USER_DEFAULT,
                                           DISPATCH_PROPERTYPUT, &parameters, nullptr, &told, nullptr);
    if (FAILED(answer)) {
        throw failure(answer, told);
    }
}

AutomationObject AutomationObject::object(const std::string& property) const {
    Variant found;
    read(*object_, property, found);
    if (found.value.vt != VT_DISPATCH || found.value.pdispVal == nullptr) {
        throw ado::Error(kObjectRequired, "Object required");
    }
    found.value.vt = VT_EMPTY; // it belongs to the new object
    return AutomationObject(found.value.pdispVal);
}

int AutomationObject::number(const std::string& property) const {
    Variant found;
    read(*object_, property, found);
    Variant asNumber;
    if (FAILED(VariantChangeType(&asNumber.value, &found.value, 0, VT_I4))) {
        throw ado::Error(kAutomationError, "Automation error");
    }
    return asNumber.value.lVal;
}

} // namespace platform
