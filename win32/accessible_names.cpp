#include "win32/accessible_names.h"

#include <oleacc.h>

#include <new>
#include <string>
#include <unordered_map>
#include <utility>

#include "win32/late_bound.h"

namespace kvs::win32 {

namespace {

struct Named {
    WNDPROC previous = nullptr;
    std::wstring name;
};

// By window; a control leaves when it is destroyed.
std::unordered_map<HWND, Named> namedControls;

std::wstring wide(std::string_view text) {
    if (text.empty()) return {};
    const int length = static_cast<int>(text.size());
    const int needed = MultiByteToWideChar(CP_ACP, 0, text.data(), length, nullptr, 0);
    if (needed <= 0) return {};
    std::wstring result(static_cast<std::size_t>(needed), L'\0');
    MultiByteToWideChar(CP_ACP, 0, text.data(), length, result.data(), needed);
    return result;
}

bool isSelf(const VARIANT& child) { return child.vt == VT_I4 && child.lVal == CHILDID_SELF; }

// The standard proxy with another name. Interfaces other than IAccessible
// and its bases (IOleWindow, IEnumVARIANT) are the proxy's own.
class NamedAccessible final : public IAccessible {
public:
    NamedAccessible(IAccessible* proxy, std::wstring name) : proxy_(proxy), name_(std::move(name)) {}
    NamedAccessible(const NamedAccessible&) = delete;
    NamedAccessible& operator=(const NamedAccessible&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        if (!object) return E_POINTER;
        if (iid == __uuidof(IUnknown) || iid == __uuidof(IDispatch) || iid == __uuidof(IAccessible)) {
            *object = static_cast<IAccessible*>(this);
            AddRef();
            return S_OK;
        }
        return proxy_->QueryInterface(iid, object);
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(InterlockedIncrement(&references_)); }
    ULONG STDMETHODCALLTYPE Release() override {
        const LONG left = InterlockedDecrement(&references_);
        if (left == 0) delete this;
        return static_cast<ULONG>(left);
    }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override { return proxy_->GetTypeInfoCount(count); }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override {
        return proxy_->GetTypeInfo(index, locale, info);
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale,
                                            DISPID* ids) override {
        return proxy_->GetIDsOfNames(iid, names, count, locale, ids);
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* parameters,
                                     VARIANT* result, EXCEPINFO* exception, UINT* argumentError) override {
        return proxy_->Invoke(id, iid, locale, flags, parameters, result, exception, argumentError);
    }

    HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override {
        if (!isSelf(child)) return proxy_->get_accName(child, name);
        if (!name) return E_POINTER;
        *name = sysAllocStringLen(name_.c_str(), static_cast<UINT>(name_.size()));
        return *name ? S_OK : E_OUTOFMEMORY;
    }

    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override { return proxy_->get_accParent(parent); }
    HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* count) override { return proxy_->get_accChildCount(count); }
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** object) override {
        return proxy_->get_accChild(child, object);
    }
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) override {
        return proxy_->get_accValue(child, value);
    }
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* text) override {
        return proxy_->get_accDescription(child, text);
    }
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override {
        return proxy_->get_accRole(child, role);
    }
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override {
        return proxy_->get_accState(child, state);
    }
    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT child, BSTR* help) override { return proxy_->get_accHelp(child, help); }
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT child, LONG* topic) override {
        return proxy_->get_accHelpTopic(file, child, topic);
    }
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) override {
        return proxy_->get_accKeyboardShortcut(child, shortcut);
    }
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* child) override { return proxy_->get_accFocus(child); }
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* children) override {
        return proxy_->get_accSelection(children);
    }
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* action) override {
        return proxy_->get_accDefaultAction(child, action);
    }
    HRESULT STDMETHODCALLTYPE accSelect(LONG flags, VARIANT child) override { return proxy_->accSelect(flags, child); }
    HRESULT STDMETHODCALLTYPE accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT child) override {
        return proxy_->accLocation(left, top, width, height, child);
    }
    HRESULT STDMETHODCALLTYPE accNavigate(LONG direction, VARIANT start, VARIANT* end) override {
        return proxy_->accNavigate(direction, start, end);
    }
    HRESULT STDMETHODCALLTYPE accHitTest(LONG x, LONG y, VARIANT* child) override {
        return proxy_->accHitTest(x, y, child);
    }
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override { return proxy_->accDoDefaultAction(child); }
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT child, BSTR name) override { return proxy_->put_accName(child, name); }
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT child, BSTR value) override {
        return proxy_->put_accValue(child, value);
    }

private:
    ~NamedAccessible() { proxy_->Release(); }

    IAccessible* proxy_;
    std::wstring name_;
    LONG references_ = 1;
};

// The client object of a named control, as LresultFromObject hands it over;
// 0 (the default object) when the accessibility library is not there or the
// thread has no COM for it.
LRESULT clientObject(HWND control, WPARAM wParam, const std::wstring& name) {
    IAccessible* proxy = nullptr;
    if (FAILED(createStdAccessibleObject(control, OBJID_CLIENT, __uuidof(IAccessible), reinterpret_cast<void**>(&proxy))) ||
        !proxy)
        return 0;
    auto* named = new (std::nothrow) NamedAccessible(proxy, name);
    if (!named) {
        proxy->Release();
        return 0;
    }
    const LRESULT result = lresultFromObject(__uuidof(IAccessible), wParam, named);
    named->Release();
    return result > 0 ? result : 0;
}

LRESULT CALLBACK namedControlProcedure(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto found = namedControls.find(control);
    if (found == namedControls.end()) return DefWindowProcA(control, message, wParam, lParam);
    const WNDPROC previous = found->second.previous;
    if (message == WM_NCDESTROY) {
        SetWindowLongPtrA(control, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(previous));
        namedControls.erase(found);
        return CallWindowProcA(previous, control, message, wParam, lParam);
    }
    if (message == WM_GETOBJECT && static_cast<DWORD>(lParam) == static_cast<DWORD>(OBJID_CLIENT)) {
        try {
            if (const LRESULT object = clientObject(control, wParam, found->second.name)) return object;
        } catch (...) {
            // No exception crosses into the window manager; the default object answers.
        }
    }
    return CallWindowProcA(previous, control, message, wParam, lParam);
}

}  // namespace

void setAccessibleName(HWND control, std::string_view name) {
    if (!control) return;
    const auto found = namedControls.find(control);
    if (found != namedControls.end()) {
        found->second.name = wide(name);
        return;
    }
    Named& named = namedControls[control];
    named.name = wide(name);
    named.previous = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(control, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(namedControlProcedure)));
}

}  // namespace kvs::win32
