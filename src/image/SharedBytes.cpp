#include "image/SharedBytes.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>
#include <vector>

#include "image/BlockGate.h"

#if defined(__linux__)
#include <sys/mman.h>
#endif

namespace {

constexpr std::size_t kPage = std::size_t{2} << 20;  // a large page; blocks of this size and more use them

// Under AddressSanitizer every block comes from its heap, so that an access out of bounds is found.
#if defined(__linux__) && !defined(__SANITIZE_ADDRESS__)
constexpr std::size_t kLargeBlock = 2 * kPage;
#else
constexpr std::size_t kLargeBlock = SIZE_MAX;
#endif

constexpr std::size_t kAlign = 64;

struct CLargeBlock {
    std::uint8_t* pBits = nullptr;
    std::size_t nSize = 0;
};

#if defined(__linux__)
// nSize is a multiple of kPage. Starts at a multiple of kPage too, or the first and last part would be small
// pages.
CLargeBlock MapLarge(std::size_t nSize) {
    void* const pMap =
        mmap(nullptr, nSize + kPage, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (pMap == MAP_FAILED) return {};
    auto* const pStart = static_cast<std::uint8_t*>(pMap);
    const std::size_t nBefore = (kPage - reinterpret_cast<std::uintptr_t>(pStart) % kPage) % kPage;
    std::uint8_t* const pBits = pStart + nBefore;
    if (nBefore > 0) munmap(pStart, nBefore);
    munmap(pBits + nSize, kPage - nBefore);
    madvise(pBits, nSize, MADV_HUGEPAGE);
    return {pBits, nSize};
}

void UnmapLarge(const CLargeBlock& block) {
    munmap(block.pBits, block.nSize);
}
#else
CLargeBlock MapLarge(std::size_t) {
    return {};
}
void UnmapLarge(const CLargeBlock&) {}
#endif

// The large blocks that were given back last, oldest first. Every living block holds a share of the store, so
// it outlives them all whatever the order in which a program ends.
class CBlockStore {
  public:
    // Giving a block back must not need memory.
    CBlockStore() { m_kept.reserve(kMaxKept); }
    CBlockStore(const CBlockStore&) = delete;
    CBlockStore& operator=(const CBlockStore&) = delete;
    ~CBlockStore() { Drop(0); }

    CLargeBlock Take(std::size_t nSize) {
        const auto it = std::find_if(m_kept.rbegin(), m_kept.rend(),
                                     [&](const CLargeBlock& block) { return block.nSize == nSize; });
        if (it == m_kept.rend()) return MapOrMakeRoom(nSize);
        const CLargeBlock block = *it;
        m_nKeptBytes -= block.nSize;
        m_kept.erase(std::next(it).base());
        return block;
    }

    void Give(const CLargeBlock& block) {
        if (block.nSize > kMaxKeptBytes) {
            UnmapLarge(block);
            return;
        }
        while (m_kept.size() >= kMaxKept || m_nKeptBytes + block.nSize > kMaxKeptBytes)
            Drop(m_kept.size() - 1);
        m_kept.push_back(block);
        m_nKeptBytes += block.nSize;
    }

    std::size_t KeptBytes() const { return m_nKeptBytes; }

  private:
    static constexpr std::size_t kMaxKept = 6;
    static constexpr std::size_t kMaxKeptBytes = std::size_t{128} << 20;

    CLargeBlock MapOrMakeRoom(std::size_t nSize) {
        const CLargeBlock block = MapLarge(nSize);
        if (block.pBits != nullptr || m_kept.empty()) return block;
        Drop(0);
        return MapLarge(nSize);
    }

    // Returns the oldest to the system until nLeft remain.
    void Drop(std::size_t nLeft) {
        while (m_kept.size() > nLeft) {
            UnmapLarge(m_kept.front());
            m_nKeptBytes -= m_kept.front().nSize;
            m_kept.erase(m_kept.begin());
        }
    }

    std::vector<CLargeBlock> m_kept;
    std::size_t m_nKeptBytes = 0;
};

const std::shared_ptr<CBlockStore>& BlockStore() {
    static const std::shared_ptr<CBlockStore> pStore = std::make_shared<CBlockStore>();
    return pStore;
}

#if defined(__linux__) && !defined(__SANITIZE_ADDRESS__)
// Aligned here and not by the heap: glibc before 2.38 does not find the gap that an aligned block has left
// when the next one of its size is wanted, and a program that reads file after file grows and grows.
std::shared_ptr<std::uint8_t> AllocateSmall(std::size_t nSize) {
    // NOLINTBEGIN(cppcoreguidelines-no-malloc,cppcoreguidelines-owning-memory): CBlockGate has counted it.
    void* const pWhole = std::malloc(nSize + kAlign);
    if (pWhole == nullptr) return nullptr;
    const std::size_t nBefore = kAlign - reinterpret_cast<std::uintptr_t>(pWhole) % kAlign;
    return {static_cast<std::uint8_t*>(pWhole) + nBefore, [pWhole](std::uint8_t*) { std::free(pWhole); }};
    // NOLINTEND(cppcoreguidelines-no-malloc,cppcoreguidelines-owning-memory)
}
#else
std::shared_ptr<std::uint8_t> AllocateSmall(std::size_t nSize) {
    constexpr std::align_val_t kAlignment{kAlign};
    auto* const pBits = static_cast<std::uint8_t*>(::operator new(nSize, kAlignment, std::nothrow));
    if (pBits == nullptr) return nullptr;
    return {pBits, [](std::uint8_t* p) { ::operator delete(p, kAlignment); }};
}
#endif

std::shared_ptr<std::uint8_t> AllocateLarge(std::size_t nSize) {
    std::shared_ptr<CBlockStore> pStore = BlockStore();
    const CLargeBlock block = pStore->Take((nSize + kPage - 1) / kPage * kPage);
    if (block.pBits == nullptr) return nullptr;
    return {block.pBits, [pStore = std::move(pStore), block](std::uint8_t*) { pStore->Give(block); }};
}

}  // namespace

std::size_t AvailableMemory() {
    std::size_t nBytes = SIZE_MAX / 2;
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> pFile(std::fopen("/proc/meminfo", "re"),
                                                                &std::fclose);
    if (!pFile) return nBytes;
    char szLine[128];
    while (std::fgets(szLine, sizeof(szLine), pFile.get()) != nullptr) {
        unsigned long long nKilobytes = 0;
        if (std::sscanf(szLine, "MemAvailable: %llu", &nKilobytes) == 1) nBytes = nKilobytes * 1024;
    }
    return nBytes;
}

// A system that promises more memory than it has would end the program at the first write; so large wishes
// are compared with what there is.
bool CSharedBytes::Fits(std::uint64_t nSize) {
    constexpr std::uint64_t kWorthAsking = std::uint64_t{256} << 20;
    if (nSize > kMaxSize) return false;
    return nSize < kWorthAsking || nSize <= AvailableMemory() + BlockStore()->KeptBytes();
}

bool CSharedBytes::Allocate(std::size_t nSize) {
    if (nSize == 0 || !Fits(nSize) || !CBlockGate::Admits(nSize)) return false;
    const std::size_t nWhole = nSize + kSlack;
    std::shared_ptr<std::uint8_t> pBlock;
    try {
        pBlock = nWhole >= kLargeBlock ? AllocateLarge(nWhole) : AllocateSmall(nWhole);
    } catch (const std::bad_alloc&) {
        return false;  // there was no memory for the count of the owners
    }
    if (!pBlock) return false;
    m_pBlock = std::move(pBlock);
    m_nSize = nSize;
    return true;
}

void CSharedBytes::Clear() {
    m_pBlock.reset();
    m_nSize = 0;
}

bool CSharedBytes::Separate() {
    if (IsEmpty() || m_pBlock.use_count() == 1) return true;
    const std::shared_ptr<std::uint8_t> pOld = m_pBlock;
    if (!Allocate(m_nSize)) return false;
    std::memcpy(m_pBlock.get(), pOld.get(), m_nSize);
    return true;
}

std::uint8_t* CSharedBytes::MutableData() {
    return Separate() ? m_pBlock.get() : nullptr;
}
