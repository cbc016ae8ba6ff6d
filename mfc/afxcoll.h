// CStringList: the list of strings, laid out as CList.
#pragma once
#include <afx.h>
#include <afxplex_.h>

/// As CList; each element shares its text with the string that it was made from.
class CStringList : public CObject {
    DECLARE_DYNAMIC(CStringList)
protected:
    struct CNode {
        CNode* pNext;
        CNode* pPrev;
        CString data;
    };

public:
    /// Nodes are allocated nBlockSize at a time.
    explicit CStringList(INT_PTR nBlockSize = 10);
    ~CStringList() override;
    void Serialize(CArchive& ar) override;

    INT_PTR GetCount() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }

    CString& GetHead() { return NodeAt(GetHeadPosition())->data; }
    CString& GetTail() { return NodeAt(GetTailPosition())->data; }

    /// Throws when the list is empty.
    CString RemoveHead();

    POSITION AddTail(LPCTSTR newElement);
    POSITION AddTail(const CString& newElement);
    void RemoveAll();

    POSITION GetHeadPosition() const { return reinterpret_cast<POSITION>(m_pNodeHead); }
    POSITION GetTailPosition() const { return reinterpret_cast<POSITION>(m_pNodeTail); }
    /// Returns the element at the position and moves the position on; null after the last.
    CString& GetNext(POSITION& rPosition) {
        CNode* pNode = NodeAt(rPosition);
        rPosition = reinterpret_cast<POSITION>(pNode->pNext);
        return pNode->data;
    }
    const CString& GetNext(POSITION& rPosition) const {
        return const_cast<CStringList*>(this)->GetNext(rPosition);
    }

    void RemoveAt(POSITION position);

protected:
    static CNode* NodeAt(POSITION position) {
        ENSURE(position != nullptr);
        return reinterpret_cast<CNode*>(position);
    }
    CNode* NewNode(CNode* pPrev, CNode* pNext);
    void FreeNode(CNode* pNode);

    CNode* m_pNodeHead;
    CNode* m_pNodeTail;
    INT_PTR m_nCount;
    CNode* m_pNodeFree;
    CPlex* m_pBlocks;
    INT_PTR m_nBlockSize;
};
