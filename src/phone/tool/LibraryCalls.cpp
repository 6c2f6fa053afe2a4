#include "LibraryCalls.h"

#include <dlfcn.h>

#include <algorithm>
#include <charconv>
#include <sstream>
#include <tuple>
#include <type_traits>

#include "engines/linkset/PhoneLibrary.h"

namespace {

constexpr CLibraryCall kCalls[] = {
    {"GetPhoneInfo", "PORT MODEMPORT USB TIMELIMIT"},
    {"ConnectToPhone", "PORT MODEMPORT USB"},
    {"DisconnectToPhone", ""},
    {"IsConnected", ""},
    {"ChangeUSBStream", "PORT MODEMPORT USB STREAM"},
    {"GetNumResolution", "CLASS"},
    {"GetResolution", "CLASS INDEX"},
    {"GetThumbnailResolution", "CLASS"},
    {"SendDummyPacket", ""},
    {"StopDummyPacket", ""},
    {"GetFileInfoListfromPhone", "USB CLASS FOLDER OPTION"},
    {"GetFilefromPhone", "CLASS FILEID PATH FETCHOPTION"},
    {"GetAvailableMemorySize", "CLASS"},
    {"GetTotalFileNum", "CLASS"},
    {"TransferFileToPhone", "CLASS PATH NAME STREAMVALUE"},
    {"GetSDCardStatus", "CLASS"},
};

// A function's own words, taken from the front; the first that does not fit is remembered.
class CArguments {
  public:
    explicit CArguments(std::span<const std::string> words) : m_words(words) {}
    const char* Text() { return m_words[m_nNext++].c_str(); }
    template <typename T>
    T Number() {
        const std::string& strWord = m_words[m_nNext++];
        T n = 0;
        const char* const pEnd = strWord.data() + strWord.size();
        const auto [pStop, error] = std::from_chars(strWord.data(), pEnd, n);
        if ((error != std::errc() || pStop != pEnd) && m_strWrong.empty()) m_strWrong = strWord;
        return n;
    }
    const std::string& Wrong() const { return m_strWrong; }

  private:
    std::span<const std::string> m_words;
    std::size_t m_nNext = 0;
    std::string m_strWrong;
};

// What is passed for a parameter: a number or a text from the words, or a place for an out-value.
template <typename T>
class CParameter {
  public:
    explicit CParameter(CArguments& arguments) {
        if constexpr (std::is_same_v<T, const char*>) {
            m_value = arguments.Text();
        } else if constexpr (!std::is_pointer_v<T>) {
            m_value = arguments.Number<T>();
        }
    }
    T Pass() {
        if constexpr (kIsOut) {
            return &m_value;
        } else {
            return m_value;
        }
    }
    void Tell(std::ostream& out) const {
        if constexpr (kIsOut) out << ' ' << +m_value;
    }

  private:
    static constexpr bool kIsOut = std::is_pointer_v<T> && !std::is_same_v<T, const char*>;
    std::conditional_t<kIsOut, std::remove_pointer_t<T>, T> m_value{};
};

// Calls it with the words; the arguments in braces are made from the first to the last.
template <typename TResult, typename... TParameters>
std::string CallWith(TResult (*pFunction)(TParameters...), CArguments& arguments) {
    std::tuple<CParameter<TParameters>...> parameters{CParameter<TParameters>(arguments)...};
    std::ostringstream out;
    if (!arguments.Wrong().empty()) return {};
    std::apply(
        [&](auto&... parameter) {
            if constexpr (std::is_void_v<TResult>) {
                pFunction(parameter.Pass()...);
            } else {
                out << ' ' << pFunction(parameter.Pass()...);
            }
            (parameter.Tell(out), ...);
        },
        parameters);
    return out.str();
}

// Only the types of the functions are used here; the functions themselves are the library's.
using CCaller = std::string (*)(void* pFunction, CArguments& arguments);
template <typename TFunction>
std::string CallAs(void* pFunction, CArguments& arguments) {
    return CallWith(reinterpret_cast<TFunction*>(pFunction), arguments);
}

constexpr CCaller kCallers[] = {
    CallAs<decltype(GetPhoneInfo)>,
    CallAs<decltype(ConnectToPhone)>,
    CallAs<decltype(DisconnectToPhone)>,
    CallAs<decltype(IsConnected)>,
    CallAs<decltype(ChangeUSBStream)>,
    CallAs<decltype(GetNumResolution)>,
    CallAs<decltype(GetResolution)>,
    CallAs<decltype(GetThumbnailResolution)>,
    CallAs<decltype(SendDummyPacket)>,
    CallAs<decltype(StopDummyPacket)>,
    CallAs<decltype(GetFileInfoListfromPhone)>,
    CallAs<decltype(GetFilefromPhone)>,
    CallAs<decltype(GetAvailableMemorySize)>,
    CallAs<decltype(GetTotalFileNum)>,
    CallAs<decltype(TransferFileToPhone)>,
    CallAs<decltype(GetSDCardStatus)>,
};
static_assert(std::size(kCallers) == std::size(kCalls));

std::size_t CountWords(std::string_view strWords) {
    if (strWords.empty()) return 0;
    return static_cast<std::size_t>(std::ranges::count(strWords, ' ')) + 1;
}

}  // namespace

std::span<const CLibraryCall> AllCalls() {
    return kCalls;
}

CCalledLibrary::CCalledLibrary(const std::string& strPath)
    : m_pLibrary(dlopen(strPath.c_str(), RTLD_NOW | RTLD_LOCAL)) {
    if (m_pLibrary == nullptr) m_strError = dlerror();
}

CCallResult CCalledLibrary::Call(std::span<const std::string> words) const {
    const auto* const itCall = std::ranges::find(kCalls, words[0], &CLibraryCall::szName);
    if (itCall == std::end(kCalls)) return {false, true, words[0] + " is no function of a phone library"};
    if (words.size() - 1 != CountWords(itCall->szWords))
        return {false, true, "it is " + words[0] + " " + itCall->szWords};
    void* const pFunction = dlsym(m_pLibrary, itCall->szName);
    if (pFunction == nullptr) return {false, false, words[0] + " is not in the library"};
    CArguments arguments(words.subspan(1));
    const std::string strAnswer = kCallers[itCall - kCalls](pFunction, arguments);
    if (!arguments.Wrong().empty()) return {false, true, arguments.Wrong() + " is no number for " + words[0]};
    return {true, false, words[0] + strAnswer};
}
