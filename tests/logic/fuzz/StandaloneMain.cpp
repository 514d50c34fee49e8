// Runs a fuzz target over every file of the folders given: the stored corpus as an ordinary test.

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size);

int main(int argc, char ** argv)
{
    std::size_t count = 0;
    for (int argument = 1; argument < argc; ++argument)
    {
        std::error_code error;
        for (std::filesystem::directory_entry const & file :
             std::filesystem::recursive_directory_iterator(argv[argument], error))
        {
            if (!file.is_regular_file())
                continue;
            std::ifstream stream(file.path(), std::ios::binary);
            std::vector<char> const bytes{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
            if (!stream.good() && !stream.eof())
            {
                std::fprintf(stderr, "cannot read %s\n", file.path().string().c_str());
                return 1;
            }
            LLVMFuzzerTestOneInput(reinterpret_cast<std::uint8_t const *>(bytes.data()), bytes.size());
            ++count;
        }
        if (error)
        {
            std::fprintf(stderr, "cannot list %s: %s\n", argv[argument], error.message().c_str());
            return 1;
        }
    }
    std::printf("%zu inputs\n", count);
    return count == 0 ? 1 : 0;
}
