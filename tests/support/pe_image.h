// What the headers of a loaded program or DLL say of its imports.
#pragma once

#include <windows.h>

#include <map>
#include <string>

class PeImage {
public:
    explicit PeImage(HMODULE module) : base(reinterpret_cast<const BYTE*>(module)) {}

    // Where this image keeps the addresses of what it imports from a DLL whose name starts so, by the function's name. A
    // name that is linked in two ways has two places.
    std::multimap<std::string, void**> ImportEntries(const std::string& dll = {}) const {
        std::multimap<std::string, void**> entries;
        for (const auto* import = Directory<IMAGE_IMPORT_DESCRIPTOR>(IMAGE_DIRECTORY_ENTRY_IMPORT); import->Name;
             ++import) {
            if (!std::string(At<char>(import->Name)).starts_with(dll)) continue;
            const auto* names = At<IMAGE_THUNK_DATA>(import->OriginalFirstThunk);
            const auto* entry = At<void*>(import->FirstThunk);
            for (; names->u1.AddressOfData; ++names, ++entry)
                entries.emplace(At<IMAGE_IMPORT_BY_NAME>(static_cast<DWORD>(names->u1.AddressOfData))->Name,
                                const_cast<void**>(entry));
        }
        return entries;
    }

private:
    template <class Record>
    const Record* At(DWORD offset) const {
        return static_cast<const Record*>(static_cast<const void*>(base + offset));
    }
    template <class Record>
    const Record* Directory(int index) const {
        const auto* headers = At<IMAGE_NT_HEADERS>(static_cast<DWORD>(At<IMAGE_DOS_HEADER>(0)->e_lfanew));
        return At<Record>(headers->OptionalHeader.DataDirectory[index].VirtualAddress);
    }

    const BYTE* base;
};
