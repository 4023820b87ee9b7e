#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace support {

/// Texts that an attacker may type as name or password: quotes, comments, unions, control characters, long texts,
/// letters that look like others. More than two hundred, all different.
inline std::vector<std::string> attacks() {
    const std::vector<std::string> shapes = {"'",
                                             "''",
                                             "' or '1'='1",
                                             "' OR 1=1 --",
                                             "' or ''='",
                                             "x' or 'x'='x",
                                             "') or ('1'='1",
                                             "' or 1=1 #",
                                             "' or 1=1/*",
                                             "admin'--",
                                             "amministratore'--",
                                             "amministratore' #",
                                             "amministratore'/*",
                                             "amministratore' or '1'='1",
                                             "'; drop table AbilitazioneAccessi --",
                                             "'; delete from AbilitazioneAccessi --",
                                             "'; update AbilitazioneAccessi set PaswUtente = 'x' --",
                                             "'; insert into AbilitazioneAccessi (NomeUtente) values ('x') --",
                                             "'; shutdown --",
                                             "' union select * from AbilitazioneAccessi --",
                                             "' union all select null, null --",
                                             "' and 1=0 union select 1, 'amministratore', 'x' --",
                                             "' having 1=1 --",
                                             "' group by NomeUtente --",
                                             "' order by 99 --",
                                             "'; exec xp_cmdshell 'dir' --",
                                             "' waitfor delay '0:0:5' --",
                                             "' or NomeUtente like '%",
                                             "' or NomeUtente is not null --",
                                             "' or exists (select 1) --",
                                             "\\' or 1=1 --",
                                             "\\",
                                             "\\'",
                                             "'+'",
                                             "'||'",
                                             "' + char(39) + '"};
    const std::vector<std::string_view> quotes = {"'", "’", "ʼ", "＇", "′", "\"", "\u201b"};
    const std::vector<std::string> others = {"%",
                                             "_",
                                             "[a-z]",
                                             "[^x]",
                                             "*",
                                             "?",
                                             "--",
                                             "/*",
                                             "*/",
                                             ";",
                                             ";;",
                                             "0x61",
                                             "N'x'",
                                             "null",
                                             "NULL",
                                             "true",
                                             "1=1",
                                             "@@version",
                                             "@x",
                                             "#temp",
                                             "[dbo]",
                                             "select",
                                             "GO",
                                             "\nGO\n",
                                             "a\tb",
                                             "a\rb",
                                             "a\nb",
                                             std::string("a\0b", 3),
                                             std::string(1, '\0'),
                                             "\x01",
                                             "\x1b[31m",
                                             "\x7f",
                                             "\xc2\xa0",
                                             "\xe2\x80\x8b",
                                             std::string("\xe2\x80\xae").append("nimda"),
                                             "\xef\xbb\xbf",
                                             "\xf0\x9f\x94\x91",
                                             "аmministratore",
                                             "ammınıstratore",
                                             "ａｍｍｉｎ",
                                             "amministratorè",
                                             "amministratore\xcc\x81",
                                             "\xff\xfe",
                                             "\xc3\x28",
                                             "\xed\xa0\x80",
                                             "%s%n%d",
                                             "${x}",
                                             "{0}",
                                             "../../x",
                                             "C:\\vabo\\IndirizzoServer.txt",
                                             "<script>",
                                             "|dir",
                                             "`id`",
                                             "$(id)",
                                             "0",
                                             "00",
                                             "0,00",
                                             "-1",
                                             "1e308",
                                             " ",
                                             "  ",
                                             "_ _",
                                             "amministratore;",
                                             "amministratore,contabile",
                                             std::string(13, 'a'),
                                             std::string(26, 'a'),
                                             std::string(255, '\''),
                                             std::string(4000, 'x'),
                                             std::string(8001, 'y'),
                                             std::string(100'000, '%'),
                                             std::string(200'000, '\'')};
    std::set<std::string> all(others.begin(), others.end());
    for (const std::string& shape : shapes) {
        for (const std::string_view quote : quotes) {
            std::string text;
            for (const char c : shape) {
                c == '\'' ? text.append(quote) : text.append(1, c);
            }
            all.insert(text);
        }
    }
    return {all.begin(), all.end()};
}

} // namespace support
