// A string manager as another module would bring it, which counts its buffers.
#pragma once
#include <afxstr.h>

namespace tests {

class CountingManager final : public ATL::IAtlStringMgr {
public:
    ~CountingManager() = default;
    int Live() const { return m_live; }
    // From now on Allocate and Reallocate find no memory.
    void RunOut() { m_empty = true; }

    ATL::CStringData* Allocate(int nChars, int nCharSize) override {
        if (m_empty) return nullptr;
        auto* data =
            static_cast<ATL::CStringData*>(malloc(sizeof(ATL::CStringData) + (nChars + 1) * nCharSize));
        *data = {this, 0, nChars, 1};
        ++m_live;
        return data;
    }
    // Memory given back is overwritten, and growing always moves, so that a use of old memory shows.
    void Free(ATL::CStringData* data) override {
        --m_live;
        wmemset(static_cast<wchar_t*>(data->data()), L'?', data->nAllocLength);
        free(data);
    }
    ATL::CStringData* Reallocate(ATL::CStringData* data, int nChars, int nCharSize) override {
        ATL::CStringData* grown = Allocate(nChars, nCharSize);
        if (grown == nullptr) return nullptr;
        grown->nDataLength = data->nDataLength;
        memcpy(grown->data(), data->data(), (data->nDataLength + 1) * nCharSize);
        Free(data);
        return grown;
    }
    ATL::CStringData* GetNilString() override {
        m_nil.data.AddRef();
        return &m_nil.data;
    }
    ATL::IAtlStringMgr* Clone() override { return this; }

private:
    struct {
        ATL::CStringData data;
        wchar_t terminator;
    } m_nil = {{this, 0, 0, 2}, 0};
    int m_live = 0;
    bool m_empty = false;
};

} // namespace tests
