// The object by which screen readers ask for a window. Readers may hold it longer than the window lives: then each
// question is answered by CO_E_OBJNOTCONNECTED.
#pragma once

#include "win32/accessible_window.h"

#include <oleacc.h>

namespace win32 {

class Accessible_Object final : public IAccessible, public IOleWindow {
 public:
  explicit Accessible_Object(Accessible_Window& window) : window_(&window) {}
  Accessible_Object(const Accessible_Object&) = delete;
  Accessible_Object& operator=(const Accessible_Object&) = delete;

  /// The window is going away.
  void Disconnect() { window_ = nullptr; }

  STDMETHOD(QueryInterface)(REFIID id, void** object) override;
  STDMETHOD_(ULONG, AddRef)() override;
  STDMETHOD_(ULONG, Release)() override;

  // Readers call the functions below straight, and never by their names.
  STDMETHOD(GetTypeInfoCount)(UINT*) override { return E_NOTIMPL; }
  STDMETHOD(GetTypeInfo)(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHOD(GetIDsOfNames)(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHOD(Invoke)(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override { return E_NOTIMPL; }

  STDMETHOD(GetWindow)(HWND* window) override;
  STDMETHOD(ContextSensitiveHelp)(BOOL) override { return E_NOTIMPL; }

  STDMETHOD(get_accParent)(IDispatch** parent) override;
  STDMETHOD(get_accChildCount)(long* count) override;
  STDMETHOD(get_accChild)(VARIANT number, IDispatch** child) override;
  STDMETHOD(get_accName)(VARIANT number, BSTR* name) override;
  STDMETHOD(get_accValue)(VARIANT number, BSTR* value) override;
  STDMETHOD(get_accDescription)(VARIANT, BSTR*) override { return DISP_E_MEMBERNOTFOUND; }
  STDMETHOD(get_accRole)(VARIANT number, VARIANT* role) override;
  STDMETHOD(get_accState)(VARIANT number, VARIANT* state) override;
  STDMETHOD(get_accHelp)(VARIANT, BSTR*) override { return DISP_E_MEMBERNOTFOUND; }
  STDMETHOD(get_accHelpTopic)(BSTR*, VARIANT, long*) override { return DISP_E_MEMBERNOTFOUND; }
  STDMETHOD(get_accKeyboardShortcut)(VARIANT number, BSTR* keys) override;
  STDMETHOD(get_accFocus)(VARIANT* focused) override;
  STDMETHOD(get_accSelection)(VARIANT* selected) override;
  STDMETHOD(get_accDefaultAction)(VARIANT number, BSTR* action) override;
  STDMETHOD(accSelect)(long flags, VARIANT number) override;
  STDMETHOD(accLocation)(long* left, long* top, long* width, long* height, VARIANT number) override;
  STDMETHOD(accNavigate)(long direction, VARIANT from, VARIANT* to) override;
  STDMETHOD(accHitTest)(long x, long y, VARIANT* hit) override;
  STDMETHOD(accDoDefaultAction)(VARIANT number) override;
  STDMETHOD(put_accName)(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }
  STDMETHOD(put_accValue)(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }

 private:
  ~Accessible_Object() = default;

  template <class Work>
  HRESULT Ask(const VARIANT& number, Work work) const;
  template <class Choose>
  HRESULT Ask_Text(const VARIANT& number, BSTR* text, Choose choose) const;
  [[nodiscard]] HRESULT Give(int number, VARIANT* to) const;
  [[nodiscard]] HRESULT Navigate_From_Itself(long direction, VARIANT* to) const;

  Accessible_Window* window_;
  volatile LONG references_ = 1;
};

}  // namespace win32
