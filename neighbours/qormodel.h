// Interfaces of the object model that QORParser.dll implements: the model configuration, which is only
// read, and the data model, which holds the objects of a data file.
#pragma once

#include <windows.h>
#include <unknwn.h>
#include <comdef.h>
#include <comip.h>

// Every operation returns S_OK, S_FALSE for "there is no such thing" with a null result, or a failing
// HRESULT with a null or zero result. Result pointers must not be null (E_POINTER). Strings handed in
// are borrowed, null stands for the empty string; strings and interfaces handed out belong to the
// caller. Names and identifiers are compared exactly. All objects belong to the apartment that made
// them.

// The identifier in the three forms that the compilers ask for.
#if defined(_MSC_VER) || defined(VARNOKE_MSABI)
#define QOR_IID(iid) __declspec(uuid(iid)) __declspec(novtable)
#define QOR_POINTER(name) typedef _com_ptr_t<_com_IIID<name, &_uuidof(name)>> name##Ptr;
#else
#define QOR_IID(iid)
#define QOR_POINTER(name) _COM_SMARTPTR_TYPEDEF(name, __uuidof(name));
#endif

namespace QORMODEL {

/// An object configuration: a type of object and the properties that its objects have.
struct QOR_IID("4e2e2ccd-7ecc-46a3-8e9a-4fcdd00cd402") IQORObjConfig : public IUnknown {
    /// An attribute of the configuration itself, such as "id" or "caption"; S_FALSE when absent.
    virtual HRESULT STDMETHODCALLTYPE GetAttribute(BSTR name, BSTR* value) = 0;
    /// The number of properties.
    virtual HRESULT STDMETHODCALLTYPE GetCount(long* count) = 0;
    /// An attribute of the property at a zero-based index, such as "name" or "caption"; S_FALSE when
    /// absent, E_INVALIDARG for an index out of range.
    virtual HRESULT STDMETHODCALLTYPE GetEntryAttribute(long index, BSTR name, BSTR* value) = 0;
};

/// A map from a local object configuration to a server one.
struct QOR_IID("c463d8ef-33d6-4cbd-954d-be5f1867380c") IQORObjMapConfig : public IUnknown {
    /// The identifier of the server object configuration that the map leads to; may be empty.
    virtual HRESULT STDMETHODCALLTYPE GetServerObjConfigId(BSTR* id) = 0;
    /// An attribute of the map itself; S_FALSE when absent.
    virtual HRESULT STDMETHODCALLTYPE GetAttribute(BSTR name, BSTR* value) = 0;
    /// The number of mapped properties.
    virtual HRESULT STDMETHODCALLTYPE GetCount(long* count) = 0;
    /// An attribute of the mapped property at a zero-based index: "server" and "client" name the
    /// property on either side; S_FALSE when absent, E_INVALIDARG for an index out of range.
    virtual HRESULT STDMETHODCALLTYPE GetEntryAttribute(long index, BSTR name, BSTR* value) = 0;
};

/// The maps of one local object configuration, in the order of the file.
struct QOR_IID("3856273d-be71-44f1-8588-318d0af79434") IQORObjMapConfigs : public IUnknown {
    /// The map at a zero-based index, to be queried for IQORObjMapConfig; E_INVALIDARG when out of range.
    virtual HRESULT STDMETHODCALLTYPE GetItem(long index, IUnknown** item) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetCount(long* count) = 0;
};

/// A design domain.
struct QOR_IID("aa1a0184-a06c-4817-9b02-f8951e64f916") IQORDomainConfig : public IUnknown {
    /// The maps of a local object configuration; without any the collection is empty.
    virtual HRESULT STDMETHODCALLTYPE GetObjMapConfigs(BSTR localId, IQORObjMapConfigs** maps) = 0;
};

/// A loaded model configuration.
struct QOR_IID("e77590e8-51aa-4028-9940-7f6fcf25a659") IQORConfigModel : public IUnknown {
    /// S_FALSE when no object configuration has that identifier.
    virtual HRESULT STDMETHODCALLTYPE GetObjConfig(BSTR id, IQORObjConfig** config) = 0;
    /// S_FALSE when no design domain has that name.
    virtual HRESULT STDMETHODCALLTYPE GetDomainConfig(BSTR name, IQORDomainConfig** domain) = 0;
};

/// A list of named texts. A text that XML can't hold (control characters, half a surrogate pair) is
/// refused with E_INVALIDARG.
struct QOR_IID("5d2f3100-39cb-4335-b0a5-e5dd622c905a") IQORDataObject : public IUnknown {
    /// S_FALSE when the object has no property of that name.
    virtual HRESULT STDMETHODCALLTYPE GetProperty(BSTR name, BSTR* value) = 0;
    /// Sets a property, which keeps its place, or appends a new one. An empty name is refused with
    /// E_INVALIDARG.
    virtual HRESULT STDMETHODCALLTYPE SetProperty(BSTR name, BSTR value) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetPropertyCount(long* count) = 0;
    /// The name of the property at a zero-based index; E_INVALIDARG when out of range.
    virtual HRESULT STDMETHODCALLTYPE GetPropertyName(long index, BSTR* name) = 0;
};

/// An entry of a data model. Its own properties are those that go to the server.
struct QOR_IID("05be94c5-d826-445f-a6dd-8964a75a4f75") IQORDataEntry : public IQORDataObject {
    virtual HRESULT STDMETHODCALLTYPE GetType(BSTR* type) = 0;
    /// The state that the model keeps for the entry: "N" for a new one; empty after creation.
    virtual HRESULT STDMETHODCALLTYPE GetState(BSTR* state) = 0;
    virtual HRESULT STDMETHODCALLTYPE SetState(BSTR state) = 0;
    /// The entry's local object: the properties as the client has them, stored with the entry but
    /// independent of its own.
    virtual HRESULT STDMETHODCALLTYPE GetLocalObject(IQORDataObject** local) = 0;
    /// Takes the entry out of its model; S_FALSE when it is in none. The entry itself stays usable.
    virtual HRESULT STDMETHODCALLTYPE Delete() = 0;
};

/// Entries found in a data model: a snapshot, not changed by later changes of the model.
struct QOR_IID("574328f1-4ac5-4bbc-b55f-e608d9cd1984") IQORDataEntries : public IUnknown {
    virtual HRESULT STDMETHODCALLTYPE GetCount(long* count) = 0;
    /// The entry at a zero-based index; E_INVALIDARG when out of range.
    virtual HRESULT STDMETHODCALLTYPE GetItem(long index, IQORDataEntry** entry) = 0;
};

/// The objects of a data file, in the order in which they were added.
struct QOR_IID("099902f0-2ab3-429b-99fd-bb736691a209") IQORDataModel : public IUnknown {
    /// Creates an entry of a type; it is in no model until it is added.
    virtual HRESULT STDMETHODCALLTYPE CreateEntry(BSTR type, IQORDataEntry** entry) = 0;
    /// Appends an entry that CreateEntry made and that is in no model (else E_INVALIDARG).
    virtual HRESULT STDMETHODCALLTYPE AddEntry(IQORDataEntry* entry) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetCount(long* count) = 0;
    /// The entry at a zero-based index, in constant time; E_INVALIDARG when out of range.
    virtual HRESULT STDMETHODCALLTYPE GetEntry(long index, IQORDataEntry** entry) = 0;
    /// The entries of a type whose property has the given value, in the model's order.
    virtual HRESULT STDMETHODCALLTYPE FindEntries(BSTR type, BSTR property, BSTR value,
                                                  IQORDataEntries** entries) = 0;
};

} // namespace QORMODEL

#ifdef __CRT_UUID_DECL
__CRT_UUID_DECL(QORMODEL::IQORObjConfig, 0x4e2e2ccd, 0x7ecc, 0x46a3, 0x8e, 0x9a, 0x4f, 0xcd, 0xd0, 0x0c, 0xd4,
                0x02)
__CRT_UUID_DECL(QORMODEL::IQORObjMapConfig, 0xc463d8ef, 0x33d6, 0x4cbd, 0x95, 0x4d, 0xbe, 0x5f, 0x18, 0x67,
                0x38, 0x0c)
__CRT_UUID_DECL(QORMODEL::IQORObjMapConfigs, 0x3856273d, 0xbe71, 0x44f1, 0x85, 0x88, 0x31, 0x8d, 0x0a, 0xf7,
                0x94, 0x34)
__CRT_UUID_DECL(QORMODEL::IQORDomainConfig, 0xaa1a0184, 0xa06c, 0x4817, 0x9b, 0x02, 0xf8, 0x95, 0x1e, 0x64,
                0xf9, 0x16)
__CRT_UUID_DECL(QORMODEL::IQORConfigModel, 0xe77590e8, 0x51aa, 0x4028, 0x99, 0x40, 0x7f, 0x6f, 0xcf, 0x25,
                0xa6, 0x59)
__CRT_UUID_DECL(QORMODEL::IQORDataObject, 0x5d2f3100, 0x39cb, 0x4335, 0xb0, 0xa5, 0xe5, 0xdd, 0x62, 0x2c,
                0x90, 0x5a)
__CRT_UUID_DECL(QORMODEL::IQORDataEntry, 0x05be94c5, 0xd826, 0x445f, 0xa6, 0xdd, 0x89, 0x64, 0xa7, 0x5a, 0x4f,
                0x75)
__CRT_UUID_DECL(QORMODEL::IQORDataEntries, 0x574328f1, 0x4ac5, 0x4bbc, 0xb5, 0x5f, 0xe6, 0x08, 0xd9, 0xcd,
                0x19, 0x84)
__CRT_UUID_DECL(QORMODEL::IQORDataModel, 0x099902f0, 0x2ab3, 0x429b, 0x99, 0xfd, 0xbb, 0x73, 0x66, 0x91, 0xa2,
                0x09)
#endif

namespace QORMODEL {

QOR_POINTER(IQORObjConfig)
QOR_POINTER(IQORObjMapConfig)
QOR_POINTER(IQORObjMapConfigs)
QOR_POINTER(IQORDomainConfig)
QOR_POINTER(IQORConfigModel)
QOR_POINTER(IQORDataObject)
QOR_POINTER(IQORDataEntry)
QOR_POINTER(IQORDataEntries)
QOR_POINTER(IQORDataModel)

/// The class of the data model, an in-process server in QORParser.dll; a new one is empty.
/// {5BD22D32-8939-4A27-A724-FBCAC7F858DE}
inline constexpr CLSID CLSID_QORDataModel = {
    0x5bd22d32, 0x8939, 0x4a27, {0xa7, 0x24, 0xfb, 0xca, 0xc7, 0xf8, 0x58, 0xde}};

} // namespace QORMODEL

#undef QOR_IID
#undef QOR_POINTER
