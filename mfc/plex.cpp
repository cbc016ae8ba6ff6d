// Memory blocks of the collections.
#include <afxplex_.h>
#include <stdint.h>

CPlex* __stdcall CPlex::Create(CPlex*& pHead, UINT_PTR nMax, UINT_PTR cbElement) {
    ENSURE(nMax > 0 && cbElement > 0);
    if (nMax > (SIZE_MAX - sizeof(CPlex)) / cbElement) AfxThrowMemoryException();
    auto* pBlock = reinterpret_cast<CPlex*>(new (std::nothrow) BYTE[sizeof(CPlex) + nMax * cbElement]);
    if (pBlock == nullptr) AfxThrowMemoryException();
    pBlock->pNext = pHead;
    pHead = pBlock;
    return pBlock;
}

void CPlex::FreeDataChain() {
    for (CPlex* pBlock = this; pBlock != nullptr;) {
        BYTE* pMemory = reinterpret_cast<BYTE*>(pBlock);
        pBlock = pBlock->pNext;
        delete[] pMemory;
    }
}
