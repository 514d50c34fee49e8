#pragma once
// The fixture of the tests that run on every kind of settings tree.

#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>

#include "settings_Records.h"
#include "windows/SettingsFile.h"

namespace settings_tests
{
namespace fs = std::filesystem;

/// A folder of the test's own.
class OwnFolder
{
public:
    OwnFolder()
    {
        static std::atomic<int> number = 0;
        testing::TestInfo const * const test = testing::UnitTest::GetInstance()->current_test_info();
        m_path = fs::temp_directory_path() / ("settings_" + std::to_string(std::random_device()()) + "_" +
                                              std::to_string(number++) + "_" + std::to_string(test->line()));
        fs::create_directories(m_path);
    }
    ~OwnFolder()
    {
        std::error_code error;
        fs::remove_all(m_path, error);
    }
    OwnFolder(OwnFolder const &) = delete;
    OwnFolder & operator=(OwnFolder const &) = delete;
    fs::path const & Path() const { return m_path; }

private:
    fs::path m_path;
};

inline Bytes ReadBytes(fs::path const & file)
{
    std::ifstream stream(file, std::ios::binary);
    EXPECT_TRUE(stream.is_open()) << file;
    return Bytes{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

inline void WriteBytes(fs::path const & file, Bytes const & bytes)
{
    std::ofstream stream(file, std::ios::binary);
    stream.write(reinterpret_cast<char const *>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    ASSERT_TRUE(stream.good());
}

/// A tree to test on, empty at first.
class TreeHost
{
public:
    virtual ~TreeHost() = default;
    virtual SettingsTree & Tree() = 0;
    /// Whether the tree lets values be set through a key opened for reading alone.
    virtual bool TakesRootValues() const = 0;
};

using HostFactory = std::unique_ptr<TreeHost> (*)();

class SettingsProtocol : public testing::TestWithParam<HostFactory>
{
protected:
    std::unique_ptr<TreeHost> m_host = GetParam()();
    SettingsTree & m_tree = m_host->Tree();
    OwnFolder m_folder;
    settings_file_names const m_files = settings_files(m_folder.Path());

    /// Adds to the tree what the list holds, values of the root too.
    void Fill(registry_entry_list const & list)
    {
        SettingsTree::key_t const root = m_tree.Open({}, SettingsTree::access_t::read);
        ASSERT_NE(root, 0U);
        std::vector<SettingsTree::key_t> path{m_tree.CreateSubkey(root, {})};
        m_tree.Close(root);
        for (registry_entry const & entry : list)
        {
            if (entry.kind == entry_value)
            {
                ASSERT_TRUE(m_tree.SetValue(path.back(), entry));
            }
            else if (entry.kind == entry_key_begin)
            {
                path.push_back(m_tree.CreateSubkey(path.back(), entry.name));
                ASSERT_NE(path.back(), 0U) << "key " << path.size();
            }
            else
            {
                m_tree.Close(path.back());
                path.pop_back();
            }
        }
        for (SettingsTree::key_t const key : path)
            m_tree.Close(key);
    }

    registry_entry_list Content()
    {
        registry_entry_list list;
        EXPECT_TRUE(read_registry_tree(m_tree, list));
        return list;
    }

    /// Exports, gives the file the plain name and imports it.
    void ExportAndImport()
    {
        ASSERT_TRUE(export_registry_settings(m_tree, m_files));
        fs::rename(m_files.saved, m_files.plain);
        ASSERT_TRUE(import_registry_settings(m_tree, m_files));
    }
};
} // namespace settings_tests
