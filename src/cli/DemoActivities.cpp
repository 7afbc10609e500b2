#include "cli/DemoActivities.h"

namespace tempodial {

namespace {

constexpr std::array<DemoActivity, 44> InventedActivities { {
    { 0, { { { "AppName", "Calculator" }, { "WindowText", "Calculator" } } } },
    { 0, { { { "AppName", "Sketchpad" }, { "WindowText", "floor plan.skp - Sketchpad" } } } },
    { 0, { { { "AppName", "Ledger" }, { "WindowText", "" }, { "OwnedWindowText", "Invoices October - Ledger" } } } },
    { 0, { { { "AppName", "Photo Album" }, { "WindowText", "Überblick Café.jpg - Photo Album" } } } },
    { 1,
        { { { "WindowText", "Train timetable - Microsoft Internet Explorer" },
            { "URL", "http://trains.example.com/timetable?from=Bern&to=Genève" } } } },
    { 1,
        { { { "WindowText", "Suppliers: prices & terms - Microsoft Internet Explorer" },
            { "URL", "http://suppliers.example.com/prices" } } } },
    { 1, { { { "WindowText", "Intranet" }, { "BaseURL", "intranet.example.com" } } } },
    { 1,
        { { { "WindowText", "Weather for the weekend - Microsoft Internet Explorer" },
            { "URL", "http://weather.example.org/weekend" }, { "Project", "Personal" } } } },
    { 2, { { { "WordDocName", "Proposal Riverside.doc" } } } },
    { 2, { { { "WordDocName", "Minutes of the weekly meeting.doc" } } } },
    { 2, { { { "WordDocName", "Angebot Müller & Söhne.doc" } } } },
    { 2, { { { "WordDocName", "Contract <draft 3>.doc" } } } },
    { 2, { { { "WordDocName", "Résumé du projet.doc" } } } },
    { 2, { { { "WordDocName", "Letter to the landlord.doc" }, { "Project", "Personal" } } } },
    { 3, { { { "ExcelDocName", "Budget Riverside.xls" } } } },
    { 3, { { { "ExcelDocName", "Travel expenses.xls" } } } },
    { 3, { { { "ExcelDocName", "売上 第3四半期.xls" } } } },
    { 3, { { { "ExcelDocName", "Forecast \"optimistic\".xls" } } } },
    { 4, { { { "PPTDocName", "Riverside kick-off.ppt" } } } },
    { 4, { { { "PPTDocName", "Обзор проекта.ppt" } } } },
    { 5,
        { { { "OutlookFolder", "Inbox" }, { "OutlookSubject", "Riverside: open questions" },
            { "OutlookFrom", "Ann Berger" }, { "OutlookDirection", "reading" } } } },
    { 5,
        { { { "OutlookFolder", "Inbox" }, { "OutlookSubject", "Weekly report" },
            { "OutlookFrom", "José Álvarez" } } } },
    { 5, { { { "OutlookFolder", "Inbox" }, { "OutlookSubject", "会議の議題" }, { "OutlookFrom", "田中 由美" } } } },
    { 5,
        { { { "OutlookFolder", "Invoices" }, { "OutlookSubject", "Invoice 2107 & reminder" },
            { "OutlookFrom", "Łukasz Nowak" } } } },
    { 5, { { { "OutlookFolder", "Inbox" }, { "WindowText", "Inbox - Microsoft Outlook" } } } },
    { 5, { { { "OutlookFolder", "Outbox" } } } },
    { 5,
        { { { "OutlookSubject", "Re: Riverside: open questions" }, { "OutlookTo", "Ann Berger; Zoë Müller" },
            { "OutlookDirection", "composed" } } } },
    { 5,
        { { { "OutlookSubject", "Lunch on Friday?" }, { "OutlookTo", "Olga Petrowa" },
            { "OutlookDirection", "composed" }, { "Project", "Personal" } } } },
    { 5,
        { { { "OutlookSubject", "Minutes of the weekly meeting" }, { "OutlookTo", "team@example.com" },
            { "OutlookDirection", "composed" } } } },
    { 6, { { { "WindowText", "City map - Mozilla Firefox" }, { "URL", "https://maps.example.net/city?zoom=12" } } } },
    { 6,
        { { { "WindowText", "How to write a proposal - Mozilla Firefox" },
            { "URL", "http://writing.example.org/proposal" } } } },
    { 6, { { { "WindowText", "News" }, { "BaseURL", "news.example.com" } } } },
    { 6, { { { "WindowText", "New tab" } } } },
    { 7, { { { "WindowText", "Address book - Lotus Notes" } } } },
    { 7, { { { "WindowText", "Riverside - Lotus Notes - Team room" } } } },
    { 7, { { { "WindowText", "Holiday calendar - Lotus Notes" } } } },
    { 8, { { { "WindowText", "todo.txt - Notepad" } } } },
    { 8, { { { "WindowText", "Notepad - ideas für Dienstag.txt" } } } },
    { 8, { { { "WindowText", "server log.txt - Notepad" } } } },
    { 9, { { { "WindowText", "My Documents" } } } },
    { 9, { { { "WindowText", "Riverside" } } } },
    { 9, { { { "WindowText", "Windows Explorer - Archiv 2005" } } } },
    { 5,
        { { { "OutlookFolder", "Inbox" }, { "OutlookSubject", "Parking places" },
            { "OutlookFrom", "Facility management" } } } },
    { 2, { { { "WordDocName", "User manual.doc" } } } },
} };

}

std::span<const DemoActivity> DemoActivities()
{
    return InventedActivities;
}

}
