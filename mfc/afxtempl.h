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
    INT_PTR GetSize() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }

    TYPE& GetHead() { return NodeAt(GetHeadPosition())->data; }
    const TYPE& GetHead() const { return NodeAt(GetHeadPosition())->data; }
    TYPE& GetTail() { return NodeAt(GetTailPosition())->data; }
    const TYPE& GetTail() const { return NodeAt(GetTailPosition())->data; }

    /// Each throws when the list is empty.
    TYPE RemoveHead();
    TYPE RemoveTail();

    POSITION AddHead(ARG_TYPE newElement) { return ToPosition(NewNode(nullptr, m_pNodeHead, newElement)); }
    POSITION AddTail(ARG_TYPE newElement) { return ToPosition(NewNode(m_pNodeTail, nullptr, newElement)); }
    /// Copies the elements of another list, in order.
    void AddHead(CList* pNewList);
    void AddTail(CList* pNewList);
    void RemoveAll();

    POSITION GetHeadPosition() const { return ToPosition(m_pNodeHead); }
    POSITION GetTailPosition() const { return ToPosition(m_pNodeTail); }
    /// Returns the element at the position and moves the position on; null after the last.
    TYPE& GetNext(POSITION& rPosition);
    const TYPE& GetNext(POSITION& rPosition) const;
    TYPE& GetPrev(POSITION& rPosition);
    const TYPE& GetPrev(POSITION& rPosition) const;

    TYPE& GetAt(POSITION position) { return NodeAt(position)->data; }
    const TYPE& GetAt(POSITION position) const { return NodeAt(position)->data; }
    void SetAt(POSITION position, ARG_TYPE newElement) { NodeAt(position)->data = newElement; }
    void RemoveAt(POSITION position);

    /// At a null position: at the head (InsertBefore) or the tail (InsertAfter).
    POSITION InsertBefore(POSITION position, ARG_TYPE newElement);
    POSITION InsertAfter(POSITION position, ARG_TYPE newElement);

    /// The first equal element behind startAfter (null: in the whole list), or null.
    POSITION Find(ARG_TYPE searchValue, POSITION startAfter = nullptr) const;
    /// Null when the index is out of range.
    POSITION FindIndex(INT_PTR nIndex) const;

protected:
    static POSITION ToPosition(CNode* pNode) { return reinterpret_cast<POSITION>(pNode); }
    static CNode* NodeAt(POSITION position) {
        ENSURE(position != nullptr);
        return reinterpret_cast<CNode*>(position);
    }
    CNode* NewNode(CNode* pPrev, CNode* pNext, ARG_TYPE newElement);
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
