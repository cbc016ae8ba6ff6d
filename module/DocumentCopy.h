// Documents: the values of their properties, and copies for results that outlive the lists they were chosen
// from.
#pragma once

#include <afxwin.h>
#include "varnoke/OwnedRecord.h"

namespace varnoke {

/// The value of the first property of exactly that name, as the columns of the document list show it; null
/// when there is none.
const CString* FirstValue(const SSignObj& object, const CString& name);
/// The same without regard to case, as file names are found.
const CString* FirstValueNoCase(const SSignObj& object, const CString& name);
/// The value of the last property of exactly that name, as the sign log takes it; null when there is none.
const CString* LastValue(const SSignObj& object, const CString& name);

/// A document that is worth handing out: there, and with at least one property.
bool HasProperties(const SSignObj* object);

/// A copy of the object with copies of its properties, in order.
OwnedRecord<SSignObj> CopyObject(const SSignObj& object);

/// A new type without identifier that holds a copy of the first object with properties; null when there is
/// none.
OwnedRecord<SSignType> CopyFirstWithProperties(const SSignType& type);

/// Appends an object to the type, which owns it from then on.
void AppendObject(SSignType& type, OwnedRecord<SSignObj> object);

} // namespace varnoke
