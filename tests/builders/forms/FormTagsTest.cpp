#include "builders/forms/FormTags.h"

#include "dialogs/TagRows.h"

namespace {

Row Form(FormFields fields, const char16_t* asWritten, const char16_t* lowered) {
    return {[=](TagCase tagCase) { return Shown(FormTag(fields, tagCase)); }, asWritten, lowered};
}

Row Text(const char16_t* type, TextFields fields, const char16_t* asWritten, const char16_t* lowered) {
    return {[=](TagCase tagCase) { return TextTag(T(type), fields, tagCase); }, asWritten, lowered};
}

Row TextArea(TextAreaFields fields, const char16_t* asWritten, const char16_t* lowered) {
    return {[=](TagCase tagCase) { return Shown(TextAreaTag(fields, tagCase)); }, asWritten, lowered};
}

Row Radio(const char16_t* type, RadioFields fields, const char16_t* asWritten, const char16_t* lowered) {
    return {[=](TagCase tagCase) { return RadioTag(T(type), fields, tagCase); }, asWritten, lowered};
}

Row Submit(const char16_t* type, SubmitFields fields, const char16_t* asWritten, const char16_t* lowered) {
    return {[=](TagCase tagCase) { return SubmitTag(T(type), fields, tagCase); }, asWritten, lowered};
}

Row Hidden(HiddenFields fields, const char16_t* asWritten, const char16_t* lowered) {
    return {[=](TagCase tagCase) { return HiddenTag(fields, tagCase); }, asWritten, lowered};
}

Row Select(SelectFields fields, const char16_t* asWritten, const char16_t* lowered) {
    return {[=](TagCase tagCase) { return Shown(SelectTag(fields, tagCase)); }, asWritten, lowered};
}

TEST(FormTags, AFormEndsInUpperCaseOnALineOfItsOwn) {
    Check({
        Form({}, u"<FORM>|\r\n</FORM>", u"<form>|\r\n</FORM>"),
        Form({.action = T(u"Do.cgi")}, u"<FORM ACTION=\"Do.cgi\">|\r\n</FORM>",
             u"<form action=\"Do.cgi\">|\r\n</FORM>"),
        Form({.target = T(u"_Top")}, u"<FORM TARGET=\"_Top\">|\r\n</FORM>",
             u"<form target=\"_Top\">|\r\n</FORM>"),
        Form({.method = T(u"POST")}, u"<FORM METHOD=\"POST\">|\r\n</FORM>",
             u"<form method=\"POST\">|\r\n</FORM>"),
        Form({.encType = T(u"multipart/form-data")}, u"<FORM ENCTYPE=\"multipart/form-data\">|\r\n</FORM>",
             u"<form enctype=\"multipart/form-data\">|\r\n</FORM>"),
        Form({.action = T(u"a"), .target = T(u"t"), .method = T(u"GET"), .encType = T(u"e")},
             u"<FORM ACTION=\"a\" TARGET=\"t\" METHOD=\"GET\" ENCTYPE=\"e\">|\r\n</FORM>",
             u"<form action=\"a\" target=\"t\" method=\"GET\" enctype=\"e\">|\r\n</FORM>"),
    });
}

TEST(FormTags, ATextFieldKeepsTheCaseOfItsTypeAndOfNotab) {
    Check({
        Text(u"TEXT", {}, u"<INPUT TYPE=\"TEXT\">", u"<input type=\"TEXT\">"),
        Text(u"PASSWORD", {}, u"<INPUT TYPE=\"PASSWORD\">", u"<input type=\"PASSWORD\">"),
        Text(u"TEXT", {.name = T(u"Who")}, u"<INPUT TYPE=\"TEXT\" NAME=\"Who\">",
             u"<input type=\"TEXT\" name=\"Who\">"),
        Text(u"TEXT", {.value = T(u"a \"b\" C")}, u"<INPUT TYPE=\"TEXT\" VALUE=\"a \"b\" C\">",
             u"<input type=\"TEXT\" value=\"a \"b\" C\">"),
        Text(u"TEXT", {.size = T(u"2.5")}, u"<INPUT TYPE=\"TEXT\" SIZE=\"2.5\">",
             u"<input type=\"TEXT\" size=\"2.5\">"),
        Text(u"TEXT", {.maxLength = T(u"-1")}, u"<INPUT TYPE=\"TEXT\" MAXLENGTH=\"-1\">",
             u"<input type=\"TEXT\" maxlength=\"-1\">"),
        Text(u"TEXT", {.align = T(u"TOP")}, u"<INPUT TYPE=\"TEXT\" ALIGN=\"TOP\">",
             u"<input type=\"TEXT\" align=\"TOP\">"),
        Text(u"TEXT", {.tabIndex = T(u"x")}, u"<INPUT TYPE=\"TEXT\" TABINDEX=\"x\">",
             u"<input type=\"TEXT\" tabindex=\"x\">"),
        Text(u"TEXT", {.noTab = true}, u"<INPUT TYPE=\"TEXT\" NOTAB>", u"<input type=\"TEXT\" NOTAB>"),
        Text(u"PASSWORD",
             {.name = T(u"n"),
              .value = T(u"v"),
              .size = T(u"1"),
              .maxLength = T(u"2"),
              .align = T(u"LEFT"),
              .tabIndex = T(u"3"),
              .noTab = true},
             u"<INPUT TYPE=\"PASSWORD\" NAME=\"n\" VALUE=\"v\" SIZE=\"1\" MAXLENGTH=\"2\" ALIGN=\"LEFT\" "
             u"TABINDEX=\"3\" NOTAB>",
             u"<input type=\"PASSWORD\" name=\"n\" value=\"v\" size=\"1\" maxlength=\"2\" align=\"LEFT\" "
             u"tabindex=\"3\" NOTAB>"),
    });
}

TEST(FormTags, ATextAreaEndsInUpperCase) {
    Check({
        TextArea({}, u"<TEXTAREA>|</TEXTAREA>", u"<textarea>|</TEXTAREA>"),
        TextArea({.name = T(u"N")}, u"<TEXTAREA NAME=\"N\">|</TEXTAREA>",
                 u"<textarea name=\"N\">|</TEXTAREA>"),
        TextArea({.cols = T(u"99999")}, u"<TEXTAREA COLS=\"99999\">|</TEXTAREA>",
                 u"<textarea cols=\"99999\">|</TEXTAREA>"),
        TextArea({.rows = T(u"0")}, u"<TEXTAREA ROWS=\"0\">|</TEXTAREA>",
                 u"<textarea rows=\"0\">|</TEXTAREA>"),
        TextArea({.wrap = T(u"VIRTUAL")}, u"<TEXTAREA WRAP=\"VIRTUAL\">|</TEXTAREA>",
                 u"<textarea wrap=\"VIRTUAL\">|</TEXTAREA>"),
        TextArea({.tabIndex = T(u"4")}, u"<TEXTAREA TABINDEX=\"4\">|</TEXTAREA>",
                 u"<textarea tabindex=\"4\">|</TEXTAREA>"),
        TextArea({.noTab = true}, u"<TEXTAREA NOTAB>|</TEXTAREA>", u"<textarea NOTAB>|</TEXTAREA>"),
        TextArea(
            {.name = T(u"n"),
             .cols = T(u"1"),
             .rows = T(u"2"),
             .wrap = T(u"OFF"),
             .tabIndex = T(u"3"),
             .noTab = true},
            u"<TEXTAREA NAME=\"n\" COLS=\"1\" ROWS=\"2\" WRAP=\"OFF\" TABINDEX=\"3\" NOTAB>|</TEXTAREA>",
            u"<textarea name=\"n\" cols=\"1\" rows=\"2\" wrap=\"OFF\" tabindex=\"3\" NOTAB>|</TEXTAREA>"),
    });
}

TEST(FormTags, CheckedStandsBetweenAlignmentAndTabIndex) {
    Check({
        Radio(u"RADIO", {}, u"<INPUT TYPE=\"RADIO\">", u"<input type=\"RADIO\">"),
        Radio(u"CHECKBOX", {}, u"<INPUT TYPE=\"CHECKBOX\">", u"<input type=\"CHECKBOX\">"),
        Radio(u"RADIO", {.name = T(u"N")}, u"<INPUT TYPE=\"RADIO\" NAME=\"N\">",
              u"<input type=\"RADIO\" name=\"N\">"),
        Radio(u"RADIO", {.value = T(u"V")}, u"<INPUT TYPE=\"RADIO\" VALUE=\"V\">",
              u"<input type=\"RADIO\" value=\"V\">"),
        Radio(u"RADIO", {.align = T(u"LEFT")}, u"<INPUT TYPE=\"RADIO\" ALIGN=\"LEFT\">",
              u"<input type=\"RADIO\" align=\"LEFT\">"),
        Radio(u"RADIO", {.checked = true}, u"<INPUT TYPE=\"RADIO\" CHECKED>",
              u"<input type=\"RADIO\" CHECKED>"),
        Radio(u"RADIO", {.tabIndex = T(u"1")}, u"<INPUT TYPE=\"RADIO\" TABINDEX=\"1\">",
              u"<input type=\"RADIO\" tabindex=\"1\">"),
        Radio(u"RADIO", {.noTab = true}, u"<INPUT TYPE=\"RADIO\" NOTAB>", u"<input type=\"RADIO\" NOTAB>"),
        Radio(u"CHECKBOX",
              {.name = T(u"n"),
               .value = T(u"v"),
               .align = T(u"TOP"),
               .checked = true,
               .tabIndex = T(u"3"),
               .noTab = true},
              u"<INPUT TYPE=\"CHECKBOX\" NAME=\"n\" VALUE=\"v\" ALIGN=\"TOP\" CHECKED TABINDEX=\"3\" NOTAB>",
              u"<input type=\"CHECKBOX\" name=\"n\" value=\"v\" align=\"TOP\" CHECKED tabindex=\"3\" NOTAB>"),
    });
}

TEST(FormTags, AButtonOfEachKind) {
    Check({
        Submit(u"SUBMIT", {}, u"<INPUT TYPE=\"SUBMIT\">", u"<input type=\"SUBMIT\">"),
        Submit(u"RESET", {}, u"<INPUT TYPE=\"RESET\">", u"<input type=\"RESET\">"),
        Submit(u"BUTTON", {}, u"<INPUT TYPE=\"BUTTON\">", u"<input type=\"BUTTON\">"),
        Submit(u"SUBMIT", {.name = T(u"N")}, u"<INPUT TYPE=\"SUBMIT\" NAME=\"N\">",
               u"<input type=\"SUBMIT\" name=\"N\">"),
        Submit(u"SUBMIT", {.value = T(u"Go")}, u"<INPUT TYPE=\"SUBMIT\" VALUE=\"Go\">",
               u"<input type=\"SUBMIT\" value=\"Go\">"),
        Submit(u"SUBMIT", {.align = T(u"LEFT")}, u"<INPUT TYPE=\"SUBMIT\" ALIGN=\"LEFT\">",
               u"<input type=\"SUBMIT\" align=\"LEFT\">"),
        Submit(u"SUBMIT", {.tabIndex = T(u"1")}, u"<INPUT TYPE=\"SUBMIT\" TABINDEX=\"1\">",
               u"<input type=\"SUBMIT\" tabindex=\"1\">"),
        Submit(u"SUBMIT", {.noTab = true}, u"<INPUT TYPE=\"SUBMIT\" NOTAB>",
               u"<input type=\"SUBMIT\" NOTAB>"),
        Submit(u"RESET",
               {.name = T(u"n"), .value = T(u"v"), .align = T(u"TOP"), .tabIndex = T(u"3"), .noTab = true},
               u"<INPUT TYPE=\"RESET\" NAME=\"n\" VALUE=\"v\" ALIGN=\"TOP\" TABINDEX=\"3\" NOTAB>",
               u"<input type=\"RESET\" name=\"n\" value=\"v\" align=\"TOP\" tabindex=\"3\" NOTAB>"),
    });
}

TEST(FormTags, AHiddenFieldAloneLowersItsType) {
    Check({
        Hidden({}, u"<INPUT TYPE=\"HIDDEN\">", u"<input type=\"hidden\">"),
        Hidden({.name = T(u"N")}, u"<INPUT TYPE=\"HIDDEN\" NAME=\"N\">",
               u"<input type=\"hidden\" name=\"N\">"),
        Hidden({.value = T(u"V")}, u"<INPUT TYPE=\"HIDDEN\" VALUE=\"V\">",
               u"<input type=\"hidden\" value=\"V\">"),
        Hidden({.name = T(u"N"), .value = T(u"V")}, u"<INPUT TYPE=\"HIDDEN\" NAME=\"N\" VALUE=\"V\">",
               u"<input type=\"hidden\" name=\"N\" value=\"V\">"),
    });
}

TEST(FormTags, AListHasOneItemALine) {
    Check({
        Select({}, u"<SELECT>\r\n|</SELECT>", u"<select>\r\n|</select>"),
        Select({.name = T(u"x"), .items = {T(u"a"), T(u"B")}},
               u"<SELECT NAME=\"x\">\r\n<OPTION>a\r\n<OPTION>B\r\n|</SELECT>",
               u"<select name=\"x\">\r\n<option>a\r\n<option>B\r\n|</select>"),
        // The size counts for a list of which several items can be picked, and for no other.
        Select({.multiple = true}, u"<SELECT MULTIPLE>\r\n|</SELECT>", u"<select multiple>\r\n|</select>"),
        Select({.multiple = true, .size = T(u"3")}, u"<SELECT MULTIPLE SIZE=\"3\">\r\n|</SELECT>",
               u"<select multiple size=\"3\">\r\n|</select>"),
        Select({.size = T(u"3")}, u"<SELECT>\r\n|</SELECT>", u"<select>\r\n|</select>"),
        Select({.name = T(u"n"), .multiple = true, .size = T(u"3"), .items = {T(u"i")}},
               u"<SELECT NAME=\"n\" MULTIPLE SIZE=\"3\">\r\n<OPTION>i\r\n|</SELECT>",
               u"<select name=\"n\" multiple size=\"3\">\r\n<option>i\r\n|</select>"),
    });
}

TEST(FormTags, AnItemOfOneBlankIsLeftOutAndAnEmptyOneEndsTheList) {
    Check({
        Select({.items = {T(u"a"), T(u" "), T(u"b")}}, u"<SELECT>\r\n<OPTION>a\r\n<OPTION>b\r\n|</SELECT>",
               u"<select>\r\n<option>a\r\n<option>b\r\n|</select>"),
        Select({.items = {T(u"a"), T(u""), T(u"b")}}, u"<SELECT>\r\n<OPTION>a\r\n|</SELECT>",
               u"<select>\r\n<option>a\r\n|</select>"),
        Select({.items = {T(u""), T(u"b")}}, u"<SELECT>\r\n|</SELECT>", u"<select>\r\n|</select>"),
        // Two blanks sort above one, as does a blank with anything behind it; a tab sorts below.
        Select({.items = {T(u"  "), T(u" a"), T(u"\t"), T(u"!")}},
               u"<SELECT>\r\n<OPTION>  \r\n<OPTION> a\r\n<OPTION>!\r\n|</SELECT>",
               u"<select>\r\n<option>  \r\n<option> a\r\n<option>!\r\n|</select>"),
    });
}

} // namespace
