#pragma once

#include "plugin/module/windows/platform_headers.h"

#include <gtest/gtest.h>

namespace Meridax::VisualControls::Rotavue {

/// The component model's allocator refuses everything for as long as this lives.
class RefusingHeap final : public IMallocSpy {
public:
    RefusingHeap() { EXPECT_EQ(::CoRegisterMallocSpy(this), S_OK); }
    RefusingHeap(const RefusingHeap&) = delete;
    RefusingHeap& operator=(const RefusingHeap&) = delete;
    ~RefusingHeap() { EXPECT_EQ(::CoRevokeMallocSpy(), S_OK); }

    int refused = 0;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void** object) override {
        *object = this;
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }

    SIZE_T STDMETHODCALLTYPE PreAlloc(SIZE_T) override {
        ++refused;
        return 0;  // tells the allocator to fail
    }
    void* STDMETHODCALLTYPE PostAlloc(void* block) override { return block; }
    void* STDMETHODCALLTYPE PreFree(void* block, BOOL) override { return block; }
    void STDMETHODCALLTYPE PostFree(BOOL) override {}
    SIZE_T STDMETHODCALLTYPE PreRealloc(void* block, SIZE_T bytes, void** newBlock, BOOL) override {
        *newBlock = block;
        return bytes;
    }
    void* STDMETHODCALLTYPE PostRealloc(void* block, BOOL) override { return block; }
    void* STDMETHODCALLTYPE PreGetSize(void* block, BOOL) override { return block; }
    SIZE_T STDMETHODCALLTYPE PostGetSize(SIZE_T bytes, BOOL) override { return bytes; }
    void* STDMETHODCALLTYPE PreDidAlloc(void* block, BOOL) override { return block; }
    int STDMETHODCALLTYPE PostDidAlloc(void*, BOOL, int answer) override { return answer; }
    void STDMETHODCALLTYPE PreHeapMinimize() override {}
    void STDMETHODCALLTYPE PostHeapMinimize() override {}
};

}  // namespace Meridax::VisualControls::Rotavue
