// CList: doubly linked list whose nodes come from blocks.
#pragma once
#include <afx.h>
#include <afxplex_.h>

/// List of TYPE. A POSITION stays valid until its own element is removed. Positions of other lists, and null
/// where an element is needed, are errors of the caller; null throws. The host reads lists field by field.
template <class TYPE, class ARG_TYPE = const TYPE&>
class CList : public CObject {
protected:
    struct CNode {
        CNode* pNext;
        CNode* pPrev;
        TYPE data;
    };

public:
    /// Nodes are allocated nBlockSize at a time.
    explicit CList(INT_PTR nBlockSize = 10) : m_nBlockSize(nBlockSize) {}
    ~CList() override { RemoveAll(); }

    INT_PTR GetCount() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }

    TYPE& GetHead() { return NodeAt(GetHeadPosition())->data; }
    TYPE& GetTail() { return NodeAt(GetTailPosition())->data; }

    /// Throws when the list is empty.
    TYPE RemoveHead();

    POSITION AddTail(ARG_TYPE newElement);
    void RemoveAll();

    POSITION GetHeadPosition() const { return ToPosition(m_pNodeHead); }
    POSITION GetTailPosition() const { return ToPosition(m_pNodeTail); }
    /// Returns the element at the position and moves the position on; null after the last.
    TYPE& GetNext(POSITION& rPosition);
    const TYPE& GetNext(POSITION& rPosition) const;
    TYPE& GetPrev(POSITION& rPosition);

    void RemoveAt(POSITION position) { FreeNode(NodeAt(position)); }

protected:
    static POSITION ToPosition(CNode* pNode) { return reinterpret_cast<POSITION>(pNode); }
    static CNode* NodeAt(POSITION position) {
        ENSURE(position != nullptr);
        return reinterpret_cast<CNode*>(position);
    }
    void FreeNode(CNode* pNode);
    void AddFreeBlock();

    CNode* m_pNodeHead = nullptr;
    CNode* m_pNodeTail = nullptr;
    INT_PTR m_nCount = 0;
    CNode* m_pNodeFree = nullptr;
    CPlex* m_pBlocks = nullptr;
    INT_PTR m_nBlockSize;
};

#include <afxtempl.inl>
