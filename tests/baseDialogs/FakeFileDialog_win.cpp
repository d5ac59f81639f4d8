// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "baseDialogs/FakeFileDialog_win.h"

#include <cstring>

namespace TestSupport {

namespace {

constexpr DWORD cookieOfTheHandler = 4711;
constexpr FILEOPENDIALOGOPTIONS optionsRead = FOS_NOCHANGEDIR;

QT_WARNING_PUSH
QT_WARNING_DISABLE_GCC("-Wnon-virtual-dtor") // interfaces of COM have no virtual destructors

/*! Counts itself among the objects of its dialog. */
template <typename... Interfaces>
class Counted : public Interfaces...
{
public:
    explicit Counted(FakeFileDialog *fake)
        : m_fake(fake)
    {
        ++m_fake->objects;
    }

    STDMETHODIMP_(ULONG) AddRef() override
    {
        return ++m_references;
    }

    STDMETHODIMP_(ULONG) Release() override
    {
        const ULONG references = --m_references;
        if (references == 0) {
            delete this;
        }
        return references;
    }

protected:
    virtual ~Counted()
    {
        --m_fake->objects;
    }

    HRESULT note(const QString &call, const QString &arguments = {})
    {
        m_fake->calls.append(arguments.isEmpty() ? call : QString(call + u' ' + arguments));
        return m_fake->failing == call ? E_FAIL : S_OK;
    }

    FakeFileDialog *m_fake;

private:
    ULONG m_references = 1;
};

class Item final : public Counted<IShellItem>
{
public:
    Item(FakeFileDialog *fake, std::optional<QString> path)
        : Counted(fake)
        , m_path(std::move(path))
    {
    }

    STDMETHODIMP QueryInterface(REFIID /*id*/, void ** /*object*/) override
    {
        return E_NOINTERFACE;
    }

    STDMETHODIMP BindToHandler(IBindCtx * /*context*/, REFGUID /*handler*/, REFIID /*id*/, void ** /*object*/) override
    {
        return E_NOTIMPL;
    }

    STDMETHODIMP GetParent(IShellItem ** /*parent*/) override
    {
        return E_NOTIMPL;
    }

    STDMETHODIMP GetDisplayName(SIGDN form, LPWSTR *name) override
    {
        if (!m_path || form != SIGDN_FILESYSPATH) {
            return E_INVALIDARG;
        }
        const auto bytes = std::size_t(m_path->size() + 1) * sizeof(wchar_t);
        *name = static_cast<LPWSTR>(m_fake->paths.allocate(bytes));
        std::memcpy(*name, m_path->utf16(), bytes);
        return S_OK;
    }

    STDMETHODIMP GetAttributes(SFGAOF /*mask*/, SFGAOF * /*attributes*/) override
    {
        return E_NOTIMPL;
    }

    STDMETHODIMP Compare(IShellItem * /*other*/, SICHINTF /*hint*/, int * /*order*/) override
    {
        return E_NOTIMPL;
    }

private:
    std::optional<QString> m_path;
};

class Dialog final : public Counted<IFileDialog, IOleWindow>
{
public:
    using Counted::Counted;

    STDMETHODIMP QueryInterface(REFIID id, void **object) override
    {
        if (IsEqualIID(id, IID_IOleWindow)) {
            *object = static_cast<IOleWindow *>(this);
        } else if (IsEqualIID(id, IID_IFileDialog) || IsEqualIID(id, IID_IUnknown)) {
            *object = static_cast<IFileDialog *>(this);
        } else {
            return E_NOINTERFACE;
        }
        AddRef();
        return S_OK;
    }

    STDMETHODIMP Show(HWND owner) override
    {
        note(u"Show"_qs, QString::number(quintptr(owner)));
        if (m_fake->whileShown) {
            m_fake->whileShown(this, m_fake->events);
        }
        return HRESULT_FROM_WIN32(ERROR_CANCELLED);
    }

    STDMETHODIMP SetFileTypes(UINT count, const COMDLG_FILTERSPEC *types) override
    {
        return note(u"SetFileTypes"_qs,
                    QString::number(count) + u' ' + QString::fromWCharArray(types->pszName) + u'|'
                        + QString::fromWCharArray(types->pszSpec));
    }

    STDMETHODIMP Advise(IFileDialogEvents *events, DWORD *cookie) override
    {
        if (m_fake->whenAdvised) {
            m_fake->whenAdvised(events);
        }
        if (FAILED(note(u"Advise"_qs))) {
            return E_FAIL;
        }
        events->AddRef();
        m_fake->events = events;
        *cookie = cookieOfTheHandler;
        return S_OK;
    }

    STDMETHODIMP Unadvise(DWORD cookie) override
    {
        m_fake->events->Release();
        m_fake->events = nullptr;
        return note(u"Unadvise"_qs, QString::number(cookie));
    }

    STDMETHODIMP SetOptions(FILEOPENDIALOGOPTIONS options) override
    {
        const bool isSecond = !m_fake->calls.filter(u"SetOptions"_qs).isEmpty();
        note(isSecond ? u"SetOptions2"_qs : u"SetOptions1"_qs, QString::number(options, 16));
        return m_fake->failing == (isSecond ? u"SetOptions2" : u"SetOptions1") ? E_FAIL : S_OK;
    }

    STDMETHODIMP GetOptions(FILEOPENDIALOGOPTIONS *options) override
    {
        *options = optionsRead;
        return note(u"GetOptions"_qs);
    }

    STDMETHODIMP SetFolder(IShellItem *item) override
    {
        LPWSTR path = nullptr;
        item->GetDisplayName(SIGDN_FILESYSPATH, &path);
        const QString text = QString::fromWCharArray(path);
        CoTaskMemFree(path);
        return note(u"SetFolder"_qs, text);
    }

    STDMETHODIMP GetFolder(IShellItem **item) override
    {
        *item = new Item(m_fake, m_fake->folder);
        return S_OK;
    }

    STDMETHODIMP GetCurrentSelection(IShellItem **item) override
    {
        if (!m_fake->hasSelection) {
            return E_FAIL;
        }
        *item = new Item(m_fake, m_fake->selection);
        return S_OK;
    }

    STDMETHODIMP SetTitle(LPCWSTR title) override
    {
        return note(u"SetTitle"_qs, QString::fromWCharArray(title));
    }

    STDMETHODIMP SetOkButtonLabel(LPCWSTR label) override
    {
        return note(u"SetOkButtonLabel"_qs, QString::fromWCharArray(label));
    }

    STDMETHODIMP GetWindow(HWND *window) override
    {
        *window = m_fake->window;
        return note(u"GetWindow"_qs);
    }

    // What nobody asks for.

    STDMETHODIMP SetFileTypeIndex(UINT /*index*/) override
    {
        return note(u"SetFileTypeIndex"_qs);
    }

    STDMETHODIMP GetFileTypeIndex(UINT * /*index*/) override
    {
        return note(u"GetFileTypeIndex"_qs);
    }

    STDMETHODIMP SetDefaultFolder(IShellItem * /*item*/) override
    {
        return note(u"SetDefaultFolder"_qs);
    }

    STDMETHODIMP SetFileName(LPCWSTR /*name*/) override
    {
        return note(u"SetFileName"_qs);
    }

    STDMETHODIMP GetFileName(LPWSTR * /*name*/) override
    {
        return note(u"GetFileName"_qs);
    }

    STDMETHODIMP SetFileNameLabel(LPCWSTR /*label*/) override
    {
        return note(u"SetFileNameLabel"_qs);
    }

    STDMETHODIMP GetResult(IShellItem ** /*item*/) override
    {
        return note(u"GetResult"_qs);
    }

    STDMETHODIMP AddPlace(IShellItem * /*item*/, FDAP /*place*/) override
    {
        return note(u"AddPlace"_qs);
    }

    STDMETHODIMP SetDefaultExtension(LPCWSTR /*extension*/) override
    {
        return note(u"SetDefaultExtension"_qs);
    }

    STDMETHODIMP Close(HRESULT /*result*/) override
    {
        return note(u"Close"_qs);
    }

    STDMETHODIMP SetClientGuid(REFGUID /*id*/) override
    {
        return note(u"SetClientGuid"_qs);
    }

    STDMETHODIMP ClearClientData() override
    {
        return note(u"ClearClientData"_qs);
    }

    STDMETHODIMP SetFilter(IShellItemFilter * /*filter*/) override
    {
        return note(u"SetFilter"_qs);
    }

    STDMETHODIMP ContextSensitiveHelp(BOOL /*enter*/) override
    {
        return note(u"ContextSensitiveHelp"_qs);
    }
};

class Factory final : public Counted<IClassFactory>
{
public:
    using Counted::Counted;

    STDMETHODIMP QueryInterface(REFIID id, void **object) override
    {
        if (!IsEqualIID(id, IID_IClassFactory) && !IsEqualIID(id, IID_IUnknown)) {
            return E_NOINTERFACE;
        }
        AddRef();
        *object = static_cast<IClassFactory *>(this);
        return S_OK;
    }

    STDMETHODIMP CreateInstance(IUnknown * /*outer*/, REFIID id, void **object) override
    {
        if (FAILED(note(u"CoCreateInstance"_qs))) {
            return E_FAIL;
        }
        auto *dialog = new Dialog(m_fake);
        const HRESULT result = dialog->QueryInterface(id, object);
        dialog->Release();
        return result;
    }

    STDMETHODIMP LockServer(BOOL /*lock*/) override
    {
        return S_OK;
    }
};

QT_WARNING_POP

FakeFileDialog *fakeOf(HWND window)
{
    return reinterpret_cast<FakeFileDialog *>(GetWindowLongPtrW(window, GWLP_USERDATA));
}

LRESULT CALLBACK dialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_CLOSE) {
        fakeOf(window)->isClosed = true;
        return 0;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

LRESULT CALLBACK ownButtonProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    FakeFileDialog *fake = fakeOf(window);
    fake->buttonMessages.append({window, message, wParam, lParam});
    const auto result = fake->buttonResults.constFind(message);
    return result != fake->buttonResults.cend() ? *result : DefWindowProcW(window, message, wParam, lParam);
}

HWND makeWindow(FakeFileDialog *fake, HWND parent, WNDPROC procedure)
{
    const auto number = reinterpret_cast<HMENU>(quintptr(parent != nullptr ? 1 : 0));
    const HWND window = CreateWindowExW(0, L"STATIC", L"", parent != nullptr ? WS_CHILD : WS_POPUP, 0, 0, 50, 20,
                                        parent, number, GetModuleHandleW(nullptr), nullptr);
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(fake));
    SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
    return window;
}

} // namespace

FakeFileDialog::FakeFileDialog()
    : window(makeWindow(this, nullptr, dialogProcedure))
    , button(makeWindow(this, window, ownButtonProcedure))
    , m_factory(new Factory(this))
{
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    CoRegisterClassObject(CLSID_FileOpenDialog, m_factory, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &m_registration);
    objects = 0; // from here on
}

FakeFileDialog::~FakeFileDialog()
{
    CoRevokeClassObject(m_registration);
    m_factory->Release();
    CoUninitialize();
    DestroyWindow(window);
}

void FakeFileDialog::tell(const QString &change, IFileDialog *dialog, IFileDialogEvents *handler)
{
    hasSelection = change != u"failing selection";
    const QString path = hasSelection ? change.section(u' ', 1) : QString();
    const auto itemPath = path.isEmpty() ? std::optional<QString>() : path;
    if (change.startsWith(u"folder")) {
        folder = itemPath;
        handler->OnFolderChange(dialog);
        return;
    }
    selection = itemPath;
    handler->OnSelectionChange(dialog);
}

} // namespace TestSupport
