// Archives in memory.
#pragma once

#include <afx.h>

#include <string>

/// The bytes that an archive gets from the action.
template <class Action>
std::string Stored(const Action& action)
{
    CMemFile file;
    CArchive ar(&file, CArchive::store);
    action(ar);
    ar.Close();
    std::string bytes(static_cast<size_t>(file.GetLength()), '\0');
    file.SeekToBegin();
    file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
    return bytes;
}

/// Lets the action load from an archive of these bytes.
template <class Action>
void LoadFrom(const std::string& bytes, const Action& action)
{
    CMemFile file(reinterpret_cast<BYTE*>(const_cast<char*>(bytes.data())),
                  static_cast<UINT>(bytes.size()));
    file.SetFilePath(_T("memory.dat"));
    CArchive ar(&file, CArchive::load);
    action(ar);
}

/// The cause of the CArchiveException that the action throws; -1 when it throws nothing. Others
/// pass on.
template <class Action>
int ArchiveCauseOf(const Action& action)
{
    try {
        action();
    } catch (CArchiveException* exception) {
        const int cause = exception->m_cause;
        exception->Delete();
        return cause;
    }
    return -1;
}

/// The same for loading.
template <class Action>
int CauseOfLoading(const std::string& bytes, const Action& action)
{
    return ArchiveCauseOf([&] { LoadFrom(bytes, action); });
}
