// Member functions of CList.

template <class TYPE, class ARG_TYPE>
void CList<TYPE, ARG_TYPE>::AddFreeBlock() {
    CPlex* pBlock = CPlex::Create(m_pBlocks, m_nBlockSize, sizeof(CNode));
    CNode* pNodes = static_cast<CNode*>(pBlock->data());
    for (INT_PTR i = m_nBlockSize - 1; i >= 0; --i) {
        pNodes[i].pNext = m_pNodeFree;
        m_pNodeFree = &pNodes[i];
    }
}

template <class TYPE, class ARG_TYPE>
POSITION CList<TYPE, ARG_TYPE>::AddTail(ARG_TYPE newElement) {
    if (m_pNodeFree == nullptr) AddFreeBlock();
    CNode* pNode = m_pNodeFree;
    // Should copying the element throw, the node is still on the free chain and the list unchanged.
    CNode* pNextFree = pNode->pNext;
    ::new (static_cast<void*>(&pNode->data)) TYPE(newElement);
    m_pNodeFree = pNextFree;

    pNode->pPrev = m_pNodeTail;
    pNode->pNext = nullptr;
    (m_pNodeTail != nullptr ? m_pNodeTail->pNext : m_pNodeHead) = pNode;
    m_pNodeTail = pNode;
    ++m_nCount;
    return ToPosition(pNode);
}

template <class TYPE, class ARG_TYPE>
void CList<TYPE, ARG_TYPE>::FreeNode(CNode* pNode) {
    (pNode->pPrev != nullptr ? pNode->pPrev->pNext : m_pNodeHead) = pNode->pNext;
    (pNode->pNext != nullptr ? pNode->pNext->pPrev : m_pNodeTail) = pNode->pPrev;
    pNode->data.~TYPE();
    pNode->pNext = m_pNodeFree;
    m_pNodeFree = pNode;
    // An empty list keeps no blocks.
    if (--m_nCount == 0) RemoveAll();
}

template <class TYPE, class ARG_TYPE>
void CList<TYPE, ARG_TYPE>::RemoveAll() {
    for (CNode* pNode = m_pNodeHead; pNode != nullptr; pNode = pNode->pNext)
        pNode->data.~TYPE();
    m_nCount = 0;
    m_pNodeHead = m_pNodeTail = m_pNodeFree = nullptr;
    if (m_pBlocks != nullptr) m_pBlocks->FreeDataChain();
    m_pBlocks = nullptr;
}

template <class TYPE, class ARG_TYPE>
TYPE CList<TYPE, ARG_TYPE>::RemoveHead() {
    TYPE element = GetHead();
    FreeNode(m_pNodeHead);
    return element;
}

template <class TYPE, class ARG_TYPE>
TYPE& CList<TYPE, ARG_TYPE>::GetNext(POSITION& rPosition) {
    CNode* pNode = NodeAt(rPosition);
    rPosition = ToPosition(pNode->pNext);
    return pNode->data;
}

template <class TYPE, class ARG_TYPE>
const TYPE& CList<TYPE, ARG_TYPE>::GetNext(POSITION& rPosition) const {
    return const_cast<CList*>(this)->GetNext(rPosition);
}

template <class TYPE, class ARG_TYPE>
TYPE& CList<TYPE, ARG_TYPE>::GetPrev(POSITION& rPosition) {
    CNode* pNode = NodeAt(rPosition);
    rPosition = ToPosition(pNode->pPrev);
    return pNode->data;
}
