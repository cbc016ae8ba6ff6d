// CPlex: the chained memory blocks from which collections take their nodes.
#pragma once
#include <afxver_.h>

/// Head of one block; the elements follow it. Blocks come from the C heap.
struct CPlex {
    CPlex* pNext;

    void* data() { return this + 1; }
    /// Puts a new block for nMax elements of cbElement bytes at the front of the chain.
    static CPlex* __stdcall Create(CPlex*& pHead, UINT_PTR nMax, UINT_PTR cbElement);
    /// Frees this block and those behind it.
    void FreeDataChain();
};
