// CStringList: the list of strings, with the interface and layout of CList.
#pragma once
#include <afxtempl.h>

class CStringList : public CList<CString, const CString&> {
public:
    using CList::CList;
};
