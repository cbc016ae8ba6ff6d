// CStringList.
#include <afxcoll.h>

IMPLEMENT_DYNAMIC(CStringList, CObject)

CStringList::CStringList(INT_PTR nBlockSize)
    : m_pNodeHead(nullptr), m_pNodeTail(nullptr), m_nCount(0), m_pNodeFree(nullptr), m_pBlocks(nullptr),
      m_nBlockSize(nBlockSize) {}

CStringList::~CStringList() {
    CStringList::RemoveAll();
}

void CStringList::Serialize(CArchive&) {}

CStringList::CNode* CStringList::NewNode(CNode* pPrev, CNode* pNext) {
    if (m_pNodeFree == nullptr) {
        CPlex* pBlock = CPlex::Create(m_pBlocks, m_nBlockSize, sizeof(CNode));
        CNode* pNodes = static_cast<CNode*>(pBlock->data());
        for (INT_PTR i = m_nBlockSize - 1; i >= 0; --i) {
            pNodes[i].pNext = m_pNodeFree;
            m_pNodeFree = &pNodes[i];
        }
    }
    CNode* pNode = m_pNodeFree;
    m_pNodeFree = pNode->pNext;
    pNode->pPrev = pPrev;
    pNode->pNext = pNext;
    ++m_nCount;
    ::new (static_cast<void*>(&pNode->data)) CString;
    return pNode;
}

void CStringList::FreeNode(CNode* pNode) {
    pNode->data.~CString();
    pNode->pNext = m_pNodeFree;
    m_pNodeFree = pNode;
    // An empty list keeps no blocks.
    if (--m_nCount == 0) RemoveAll();
}

POSITION CStringList::AddTail(const CString& newElement) {
    CNode* pNode = NewNode(m_pNodeTail, nullptr);
    pNode->data = newElement;
    (m_pNodeTail != nullptr ? m_pNodeTail->pNext : m_pNodeHead) = pNode;
    m_pNodeTail = pNode;
    return reinterpret_cast<POSITION>(pNode);
}

POSITION CStringList::AddTail(LPCTSTR newElement) {
    return AddTail(CString(newElement));
}

void CStringList::RemoveAt(POSITION position) {
    CNode* pNode = NodeAt(position);
    (pNode->pPrev != nullptr ? pNode->pPrev->pNext : m_pNodeHead) = pNode->pNext;
    (pNode->pNext != nullptr ? pNode->pNext->pPrev : m_pNodeTail) = pNode->pPrev;
    FreeNode(pNode);
}

CString CStringList::RemoveHead() {
    CString head = GetHead();
    RemoveAt(GetHeadPosition());
    return head;
}

void CStringList::RemoveAll() {
    for (CNode* pNode = m_pNodeHead; pNode != nullptr; pNode = pNode->pNext)
        pNode->data.~CString();
    m_nCount = 0;
    m_pNodeHead = m_pNodeTail = m_pNodeFree = nullptr;
    if (m_pBlocks != nullptr) m_pBlocks->FreeDataChain();
    m_pBlocks = nullptr;
}
