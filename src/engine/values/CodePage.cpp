#include "engine/values/CodePage.h"

#include "engine/values/CollationCharacters.h"

#include <algorithm>

namespace engine {
namespace {

/// The characters of the bytes from 0x80 on; five of them have none but the control character of their number.
constexpr std::u16string_view kUpper = u"€\x81‚ƒ„…†‡ˆ‰Š‹Œ\x8dŽ\x8f\x90‘’“”•–—˜™š›œ\x9džŸ";
constexpr char32_t kFirstUpper = 0x80;

/// Characters, each with its best fit behind it. Source: the public table of best fits of windows-1252; its characters
/// of full width are counted.
constexpr std::u16string_view kBestFits =
    u"ĀAāaĂAăaĄAąaĆCćcĈCĉcĊCċcČCčcĎDďdĐÐđdĒEēeĔEĕeĖEėeĘEęeĚEěeĜGĝgĞGğgĠGġgĢGģgĤHĥhĦHħhĨIĩiĪIīiĬIĭiĮIįiİIıi"
    u"ĴJĵjĶKķkĹLĺlĻLļlĽLľlŁLłlŃNńnŅNņnŇNňnŌOōoŎOŏoŐOőoŔRŕrŖRŗrŘRřrŚSśsŜSŝsŞSşsŢTţtŤTťtŦTŧtŨUũuŪUūuŬUŭuŮUůu"
    u"ŰUűuŲUųuŴWŵwŶYŷyŹZźzŻZżzƀbƉÐƑƒƗIƚlƟOƠOơoƫtƮTƯUưuƶzǀ|ǃ!ǍAǎaǏIǐiǑOǒoǓUǔuǕUǖuǗUǘuǙUǚuǛUǜuǞAǟaǤGǥgǦGǧgǨK"
    u"ǩkǪOǫoǬOǭoǰjɡgʹ'ʺ\"ʼ'˄^ˈ'ˉ¯ˊ´ˋ`ˍ_˚°\u0300`\u0301´\u0302^\u0303~\u0304¯\u0305¯\u0308¨\u030a°\u030e\""
    u"\u0327¸\u0331_\u0332_\u037e;ΓGΘTΣSΦFΩOαaβßδdεeμµπpσsτtφfһh։:٪%\u2000 \u2001 \u2002 \u2003 \u2004 "
    u"\u2005 \u2006 \u2010-\u2011-‗=․·′'‵`⁄/⁰°⁴4⁵5⁶6⁷7⁸8ⁿn₀0₁1₂2₃3₄4₅5₆6₇7₈8₉9₡¢₤£₧PℂCℇEℊgℋHℌHℍHℎhℐIℑIℒLℓl"
    u"ℕN℘PℙPℚQℛRℜRℝRℤZℨZ\u212aK\u212bÅℬBℭC℮eℯeℰEℱFℳMℴo∅Ø−-∓±∕/∖\\∗*∘°∙·√v∞8∣|∩n∶:∼~≈˜≡=≤=≥=≪«≫»⋅·⌂¦⌃^⌐¬⌠("
    u"⌡)\u2329<\u232a>─-│¦┌+┐+└+┘+├+┤¦┬-┴-┼+═-║¦╒+╓+╔+╕+╖+╗+╘+╙+╚+╛+╜+╝+╞¦╟¦╠¦╡¦╢¦╣¦╤-╥-╦-╧-╨-╩-╪+╫+╬+▀¯▄_"
    u"█¦▌¦▐¦░¦▒¦▓¦■¦☼¤❘|\u3000 \u3008<\u3009>《«》»〚[〛]・·";

constexpr bool isWide(char32_t character) {
    return character >= U'！' && character <= U'～';
}

char byteOf(char32_t character) {
    if (character < kFirstUpper || (character >= 0xA0 && character < 0x100)) {
        return static_cast<char>(character);
    }
    if (isWide(character)) {
        return static_cast<char>(character - U'！' + '!');
    }
    if (const auto place = kUpper.find(static_cast<char16_t>(character)); place != std::u16string_view::npos) {
        return static_cast<char>(kFirstUpper + place);
    }
    for (std::size_t place = 0; place < kBestFits.size(); place += 2) {
        if (kBestFits[place] == character) {
            return byteOf(kBestFits[place + 1]);
        }
    }
    return '?';
}

} // namespace

std::string toCodePage(std::string_view text) {
    constexpr char32_t kLastOfFirstPlane = 0xFFFF;
    std::string bytes;
    for (std::size_t place = 0; place < text.size();) {
        const char32_t character = nextCharacter(text, place);
        bytes += character > kLastOfFirstPlane ? "??" : std::string(1, byteOf(character)); // of two units
    }
    return bytes;
}

std::string fromCodePage(std::string_view bytes) {
    std::string text;
    for (const char byte : bytes) {
        const char32_t number = static_cast<unsigned char>(byte);
        const bool upper = number >= kFirstUpper && number - kFirstUpper < kUpper.size();
        appendCharacter(text, upper ? kUpper[number - kFirstUpper] : number);
    }
    return text;
}

std::string inCodePage(std::string text) {
    const bool plain = std::all_of(text.begin(), text.end(), [](char byte) { return (byte & 0x80) == 0; });
    return plain ? std::move(text) : fromCodePage(toCodePage(text));
}

} // namespace engine
