<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>Information</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>CaculateData ERROR</source>
        <translation>算式有误</translation>
    </message>
    <message>
        <source>File open failed</source>
        <translation>文件打开失败</translation>
    </message>
    <message>
        <source>There are no revocable actions!</source>
        <translation>没有可撤销的操作！</translation>
    </message>
    <message>
        <source>Are you sure to cancel?</source>
        <translation>确定要撤销吗？</translation>
    </message>
</context>
<context>
    <name>KVFileDialog</name>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
</context>
<context>
    <name>KVCAM::UIAPI::KVLineEdit</name>
    <message>
        <source>Type a number such as 12, -3.5 or 0.25: at most 15 digits or 5 decimals, and no zeros in front.</source>
        <translation>请输入数字，例如 12、-3.5 或 0.25：最多 15 位整数或 5 位小数，前面不加 0。</translation>
    </message>
    <message>
        <source>Type a number or a calculation such as 10+2.5: digits, points and + - * / only.</source>
        <translation>请输入数字或算式，例如 10+2.5：只能使用数字、小数点和 + - * /。</translation>
    </message>
    <message>
        <source>Type a positive number such as 12, 3.5 or 0.25: at most 15 digits or 5 decimals, and no zeros in front.</source>
        <translation>请输入正数，例如 12、3.5 或 0.25：最多 15 位整数或 5 位小数，前面不加 0。</translation>
    </message>
    <message>
        <source>Type at most 64 of these: lower-case letters, digits and _ + . ; -</source>
        <translation>最多 64 个字符，只能使用小写字母、数字和 _ + . ; -</translation>
    </message>
    <message>
        <source>Type at most 64 of these: lower-case letters, digits and _ + -</source>
        <translation>最多 64 个字符，只能使用小写字母、数字和 _ + -</translation>
    </message>
    <message>
        <source>Chinese characters cannot be used here.</source>
        <translation>此处不能使用汉字。</translation>
    </message>
    <message>
        <source>Type a symbol name such as r10 or rect20x30: lower-case letters, digits and _ . + -</source>
        <translation>请输入符号名，例如 r10 或 rect20x30：只能使用小写字母、数字和 _ . + -</translation>
    </message>
    <message>
        <source>Type a round symbol: r, up to six digits 1 to 9 and a blank.</source>
        <translation>请输入圆形符号：r、最多六位 1 至 9 的数字和一个空格。</translation>
    </message>
    <message>
        <source>Nothing can be typed here.</source>
        <translation>此处不能输入。</translation>
    </message>
    <message>
        <source>Type at most 36 of these: letters, digits and ~ ` ! @ # $ % &amp; ^ ( ) _ + = { } * , . ; &apos;</source>
        <translation>最多 36 个字符，只能使用字母、数字和 ~ ` ! @ # $ % &amp; ^ ( ) _ + = { } * , . ; &apos;</translation>
    </message>
    <message>
        <source>Type digits, points, blanks and minus signs only.</source>
        <translation>只能输入数字、小数点、空格和减号。</translation>
    </message>
    <message>
        <source>No more than %1 characters fit here.</source>
        <translation>此处最多 %1 个字符。</translation>
    </message>
    <message>
        <source>This cannot be typed here.</source>
        <translation>此处不能输入该字符。</translation>
    </message>
</context>
</TS>
