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
    <message>
        <source>There is no range file &quot;%1&quot;.</source>
        <translation>没有范围文件“%1”。</translation>
    </message>
    <message>
        <source>The range file &quot;%1&quot; cannot be read.</source>
        <translation>无法读取范围文件“%1”。</translation>
    </message>
    <message>
        <source>The range file &quot;%1&quot; holds other categories than when it was read.</source>
        <translation>范围文件“%1”中的类别与读取时不同。</translation>
    </message>
    <message>
        <source>An element of the range file &quot;%1&quot; cannot hold levels.</source>
        <translation>范围文件“%1”中有一个元素不能保存级别。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written.</source>
        <translation>无法写入文件“%1”。</translation>
    </message>
    <message>
        <source>A view needs a handle that is not null.</source>
        <translation>视图的句柄不能为空。</translation>
    </message>
    <message>
        <source>The view cannot be stored.</source>
        <translation>无法保存该视图。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is unknown here.</source>
        <translation>此处不认识“%1”。</translation>
    </message>
    <message>
        <source>The report is not of version %1 of the format. Write it again.</source>
        <translation>报告的格式不是版本 %1。请重新写出报告。</translation>
    </message>
    <message>
        <source>A measurement has at most two places.</source>
        <translation>一个测量最多有两个位置。</translation>
    </message>
    <message>
        <source>There are too many categories.</source>
        <translation>类别过多。</translation>
    </message>
    <message>
        <source>A measurement has two nets.</source>
        <translation>一个测量有两个网络。</translation>
    </message>
    <message>
        <source>The category %1 of the table &quot;%2&quot; is unknown or there twice.</source>
        <translation>表“%2”的类别 %1 未知或出现了两次。</translation>
    </message>
    <message>
        <source>A severity or waiver in the category %1 of the table &quot;%2&quot; does not follow from the levels and waivers.</source>
        <translation>表“%2”的类别 %1 中有严重程度或豁免与级别和豁免不符。</translation>
    </message>
    <message>
        <source>The report &quot;%1&quot; cannot be read: %2</source>
        <translation>无法读取报告“%1”：%2</translation>
    </message>
    <message>
        <source>This is not the id of a violation.</source>
        <translation>这不是违规的标识。</translation>
    </message>
    <message>
        <source>A waiver needs a reason and an author.</source>
        <translation>豁免需要理由和作者。</translation>
    </message>
    <message>
        <source>A day is written as 2026-11-22.</source>
        <translation>日期应写作 2026-11-22。</translation>
    </message>
    <message>
        <source>The version is not known.</source>
        <translation>版本未知。</translation>
    </message>
    <message>
        <source>The waivers &quot;%1&quot; cannot be read: %2</source>
        <translation>无法读取豁免文件“%1”：%2</translation>
    </message>
</context>
<context>
    <name>KVFileDialog</name>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Replace what is there already?</source>
        <translation>是否替换已有的文件？</translation>
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
        <source>This calculation cannot be read.</source>
        <translation>无法识别此算式。</translation>
    </message>
    <message>
        <source>This cannot be typed here.</source>
        <translation>此处不能输入该字符。</translation>
    </message>
</context>
<context>
    <name>Evaluate</name>
    <message>
        <source>Type a value.</source>
        <translation>请输入数值。</translation>
    </message>
    <message>
        <source>A number is missing at &quot;%1&quot;.</source>
        <translation>“%1”处缺少数字。</translation>
    </message>
    <message>
        <source>One of + - * / is missing before &quot;%1&quot;.</source>
        <translation>“%1”之前缺少 + - * / 之一。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no meaning here.</source>
        <translation>此处不能使用“%1”。</translation>
    </message>
    <message>
        <source>A comma has no meaning here; the decimal sign is a point.</source>
        <translation>此处不能使用逗号；小数点为“.”。</translation>
    </message>
    <message>
        <source>A number has only one decimal sign, and nothing between thousands.</source>
        <translation>一个数字只能有一个小数点，且不能使用千位分隔符。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a unit; use mm, um, my, cm, mil or inch.</source>
        <translation>“%1”不是单位；请使用 mm、um、my、cm、mil 或 inch。</translation>
    </message>
    <message>
        <source>This parenthesis is not closed.</source>
        <translation>此括号没有闭合。</translation>
    </message>
    <message>
        <source>This parenthesis was not opened.</source>
        <translation>此括号没有对应的左括号。</translation>
    </message>
    <message>
        <source>The parentheses are nested too deeply.</source>
        <translation>括号嵌套过深。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is zero: nothing can be divided by it.</source>
        <translation>“%1”为零，不能作除数。</translation>
    </message>
    <message>
        <source>A length cannot be multiplied by a length.</source>
        <translation>长度不能与长度相乘。</translation>
    </message>
    <message>
        <source>A number cannot be divided by a length.</source>
        <translation>数字不能除以长度。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs a unit.</source>
        <translation>“%1”需要单位。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a ratio, which cannot be added to a length or subtracted from it.</source>
        <translation>“%1”是比值，不能与长度相加减。</translation>
    </message>
    <message>
        <source>This is the ratio of two lengths, not a length.</source>
        <translation>这是两个长度的比值，不是长度。</translation>
    </message>
    <message>
        <source>This is a length, but a number without a unit is needed.</source>
        <translation>这是长度，但此处需要不带单位的数字。</translation>
    </message>
    <message>
        <source>This value is too large.</source>
        <translation>数值过大。</translation>
    </message>
</context>
<context>
    <name>Legality</name>
    <message>
        <source>Allowed: %1 or more.</source>
        <translation>允许范围：不小于 %1。</translation>
    </message>
    <message>
        <source>Allowed: %1 or less.</source>
        <translation>允许范围：不大于 %1。</translation>
    </message>
    <message>
        <source>Allowed: %1 to %2, both included.</source>
        <translation>允许范围：%1 至 %2（含两端）。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is out of range. %2</source>
        <translation>“%1”超出范围。%2</translation>
    </message>
</context>
<context>
    <name>Units</name>
    <message>
        <source>inch</source>
        <translation>英寸</translation>
    </message>
    <message>
        <source>mil</source>
        <translation>密耳</translation>
    </message>
    <message>
        <source>millimetre</source>
        <translation>毫米</translation>
    </message>
    <message>
        <source>micrometre</source>
        <translation>微米</translation>
    </message>
</context>
<context>
    <name>Symbols</name>
    <message>
        <source>diameter</source>
        <translation>直径</translation>
    </message>
    <message>
        <source>side</source>
        <translation>边长</translation>
    </message>
    <message>
        <source>outer size</source>
        <translation>外形尺寸</translation>
    </message>
    <message>
        <source>inner size</source>
        <translation>内形尺寸</translation>
    </message>
    <message>
        <source>width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>line width</source>
        <translation>线宽</translation>
    </message>
    <message>
        <source>line length</source>
        <translation>线长</translation>
    </message>
    <message>
        <source>ring width</source>
        <translation>环宽</translation>
    </message>
    <message>
        <source>ring gap</source>
        <translation>环间距</translation>
    </message>
    <message>
        <source>spoke gap</source>
        <translation>开口宽</translation>
    </message>
    <message>
        <source>air gap</source>
        <translation>间隙</translation>
    </message>
    <message>
        <source>corner size</source>
        <translation>角尺寸</translation>
    </message>
    <message>
        <source>corner cut</source>
        <translation>切角尺寸</translation>
    </message>
    <message>
        <source>upper tolerance</source>
        <translation>上公差</translation>
    </message>
    <message>
        <source>lower tolerance</source>
        <translation>下公差</translation>
    </message>
    <message>
        <source>corners</source>
        <translation>角</translation>
    </message>
    <message>
        <source>number of rings</source>
        <translation>环数</translation>
    </message>
    <message>
        <source>number of spokes</source>
        <translation>开口数</translation>
    </message>
    <message>
        <source>angle</source>
        <translation>角度</translation>
    </message>
    <message>
        <source>plating</source>
        <translation>金属化类型</translation>
    </message>
    <message>
        <source>Type a name.</source>
        <translation>请输入名称。</translation>
    </message>
    <message>
        <source>No standard symbol begins with &quot;%1&quot;.</source>
        <translation>没有以“%1”开头的标准符号。</translation>
    </message>
    <message>
        <source>This field is missing.</source>
        <translation>缺少此字段。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too much; the name ends before it.</source>
        <translation>“%1”多余，名称应在其之前结束。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number such as 10 or 2.5.</source>
        <translation>“%1”不是 10 或 2.5 这样的数字。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number.</source>
        <translation>“%1”不是整数。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large.</source>
        <translation>“%1”过大。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not begin with r (rounded) or c (cut).</source>
        <translation>“%1”不以 r（圆角）或 c（切角）开头。</translation>
    </message>
    <message>
        <source>The corners of this symbol can be rounded (r), not cut (c).</source>
        <translation>此符号的角只能是圆角（r），不能是切角（c）。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a choice of the corners 1 to 4, each once.</source>
        <translation>“%1”不是角 1 至 4 的选择，每个角只能出现一次。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not p (plated), n (not plated) or v (via).</source>
        <translation>“%1”不是 p（金属化）、n（非金属化）或 v（过孔）。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>diameter %1</source>
        <translation>直径 %1</translation>
    </message>
    <message>
        <source>side %1</source>
        <translation>边长 %1</translation>
    </message>
    <message>
        <source>outside %1</source>
        <translation>外形 %1</translation>
    </message>
    <message>
        <source>inside %1</source>
        <translation>内形 %1</translation>
    </message>
    <message>
        <source>width %1</source>
        <translation>宽 %1</translation>
    </message>
    <message>
        <source>height %1</source>
        <translation>高 %1</translation>
    </message>
    <message>
        <source>line width %1</source>
        <translation>线宽 %1</translation>
    </message>
    <message>
        <source>line length %1</source>
        <translation>线长 %1</translation>
    </message>
    <message>
        <source>ring width %1</source>
        <translation>环宽 %1</translation>
    </message>
    <message>
        <source>ring gap %1</source>
        <translation>环间距 %1</translation>
    </message>
    <message>
        <source>spoke gap %1</source>
        <translation>开口宽 %1</translation>
    </message>
    <message>
        <source>air gap %1</source>
        <translation>间隙 %1</translation>
    </message>
    <message>
        <source>corners rounded by %1</source>
        <translation>圆角 %1</translation>
    </message>
    <message>
        <source>corners %1</source>
        <translation>角 %1</translation>
    </message>
    <message>
        <source>tolerance + %1</source>
        <translation>公差 + %1</translation>
    </message>
    <message>
        <source>tolerance - %1</source>
        <translation>公差 - %1</translation>
    </message>
    <message>
        <source>only at corners %1</source>
        <translation>仅限角 %1</translation>
    </message>
    <message>
        <source>rings %1</source>
        <translation>环数 %1</translation>
    </message>
    <message>
        <source>spokes %1</source>
        <translation>开口数 %1</translation>
    </message>
    <message>
        <source>turned by %1 degrees</source>
        <translation>旋转 %1 度</translation>
    </message>
    <message>
        <source>corners cut by %1</source>
        <translation>切角 %1</translation>
    </message>
    <message>
        <source>user symbol %1</source>
        <translation>自定义符号 %1</translation>
    </message>
    <message>
        <source>plated</source>
        <translation>金属化</translation>
    </message>
    <message>
        <source>not plated</source>
        <translation>非金属化</translation>
    </message>
    <message>
        <source>via</source>
        <translation>过孔</translation>
    </message>
    <message>
        <source>round</source>
        <translation>圆形</translation>
    </message>
    <message>
        <source>square</source>
        <translation>正方形</translation>
    </message>
    <message>
        <source>oval</source>
        <translation>长圆形</translation>
    </message>
    <message>
        <source>diamond</source>
        <translation>菱形</translation>
    </message>
    <message>
        <source>octagon</source>
        <translation>八边形</translation>
    </message>
    <message>
        <source>round donut</source>
        <translation>圆环</translation>
    </message>
    <message>
        <source>square donut</source>
        <translation>方环</translation>
    </message>
    <message>
        <source>horizontal hexagon</source>
        <translation>水平六边形</translation>
    </message>
    <message>
        <source>vertical hexagon</source>
        <translation>垂直六边形</translation>
    </message>
    <message>
        <source>round butterfly</source>
        <translation>圆形蝶形</translation>
    </message>
    <message>
        <source>square butterfly</source>
        <translation>方形蝶形</translation>
    </message>
    <message>
        <source>triangle</source>
        <translation>三角形</translation>
    </message>
    <message>
        <source>half oval</source>
        <translation>半长圆形</translation>
    </message>
    <message>
        <source>ellipse</source>
        <translation>椭圆形</translation>
    </message>
    <message>
        <source>hole</source>
        <translation>孔</translation>
    </message>
    <message>
        <source>rectangle</source>
        <translation>矩形</translation>
    </message>
    <message>
        <source>round thermal</source>
        <translation>圆形热焊盘</translation>
    </message>
    <message>
        <source>round thermal with square ends</source>
        <translation>方头圆形热焊盘</translation>
    </message>
    <message>
        <source>square thermal</source>
        <translation>方形热焊盘</translation>
    </message>
    <message>
        <source>square thermal with a round inside</source>
        <translation>内圆方形热焊盘</translation>
    </message>
    <message>
        <source>rectangular thermal</source>
        <translation>矩形热焊盘</translation>
    </message>
    <message>
        <source>moire</source>
        <translation>莫尔靶标</translation>
    </message>
    <message>
        <source>rectangular donut</source>
        <translation>矩形环</translation>
    </message>
    <message>
        <source>square donut with a round inside</source>
        <translation>内圆方环</translation>
    </message>
    <message>
        <source>oval donut</source>
        <translation>长圆环</translation>
    </message>
    <message>
        <source>square thermal with open corners</source>
        <translation>开角方形热焊盘</translation>
    </message>
    <message>
        <source>rectangular thermal with open corners</source>
        <translation>开角矩形热焊盘</translation>
    </message>
    <message>
        <source>oval thermal</source>
        <translation>长圆形热焊盘</translation>
    </message>
</context>
<context>
    <name>KVCAM::UIAPI::Ext::FormState</name>
    <message>
        <source>This is not a saved form.</source>
        <translation>这不是已保存的表单。</translation>
    </message>
    <message>
        <source>The form was saved in another version than %1.</source>
        <translation>该表单的保存版本不是 %1。</translation>
    </message>
    <message>
        <source>The value of &quot;%1&quot; is of a wrong type.</source>
        <translation>“%1”的值类型不正确。</translation>
    </message>
    <message>
        <source>The form cannot be saved in &quot;%1&quot;: %2</source>
        <translation>无法将表单保存到“%1”：%2</translation>
    </message>
    <message>
        <source>The form cannot be read from &quot;%1&quot;: %2</source>
        <translation>无法从“%1”读取表单：%2</translation>
    </message>
</context>
<context>
    <name>KVCAM::UIAPI::KVLengthEdit</name>
    <message>
        <source>several values</source>
        <translation>多个值</translation>
    </message>
    <message>
        <source>Copy as</source>
        <translation>复制为</translation>
    </message>
    <message>
        <source>Select what is wrong</source>
        <translation>选中错误之处</translation>
    </message>
</context>
<context>
    <name>KVCAM::UIAPI::Ext::ReportModel</name>
    <message>
        <source>waived: %1</source>
        <translation>已豁免：%1</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>nothing found</source>
        <translation>未发现</translation>
    </message>
    <message>
        <source>For a check or layer, the worst</source>
        <translation>检查项或层的最差等级</translation>
    </message>
    <message>
        <source>Measured in whole micrometres; for a check or layer, the smallest</source>
        <translation>以整微米测量；检查项或层显示最小值</translation>
    </message>
    <message>
        <source>The level that gave the colour; for a check, its levels red / yellow / green</source>
        <translation>决定颜色的级别；检查项显示红 / 黄 / 绿级别</translation>
    </message>
    <message>
        <source>Check, layer, measurement</source>
        <translation>检查项、层、测量</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>数量</translation>
    </message>
    <message>
        <source>Measured (%1)</source>
        <translation>测量值 (%1)</translation>
    </message>
    <message>
        <source>Limit (%1)</source>
        <translation>限值 (%1)</translation>
    </message>
    <message>
        <source>Position (%1)</source>
        <translation>位置 (%1)</translation>
    </message>
    <message>
        <source>red</source>
        <translation>红</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>黄</translation>
    </message>
    <message>
        <source>green</source>
        <translation>绿</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
</context>
<context>
    <name>KVCAM::UIAPI::Ext::LayerModel</name>
    <message>
        <source>Row</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Context</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Polarity</source>
        <translation>极性</translation>
    </message>
</context>
<context>
    <name>Logging</name>
    <message>
        <source>Logging has been started already.</source>
        <translation>日志已经启动。</translation>
    </message>
    <message>
        <source>Log files cannot be written into &quot;%1&quot;.</source>
        <translation>无法在“%1”中写入日志文件。</translation>
    </message>
</context>
<context>
    <name>Json</name>
    <message>
        <source>The member is unknown.</source>
        <translation>此成员未知。</translation>
    </message>
    <message>
        <source>The member is there twice.</source>
        <translation>此成员出现了两次。</translation>
    </message>
    <message>
        <source>The member &quot;%1&quot; is missing.</source>
        <translation>缺少成员“%1”。</translation>
    </message>
    <message>
        <source>A text is expected.</source>
        <translation>此处应为文本。</translation>
    </message>
    <message>
        <source>A number is expected.</source>
        <translation>此处应为数字。</translation>
    </message>
    <message>
        <source>The number is out of range.</source>
        <translation>数字超出范围。</translation>
    </message>
    <message>
        <source>A whole number is expected.</source>
        <translation>此处应为整数。</translation>
    </message>
    <message>
        <source>true or false is expected.</source>
        <translation>此处应为 true 或 false。</translation>
    </message>
    <message>
        <source>A value is expected.</source>
        <translation>此处应为一个值。</translation>
    </message>
    <message>
        <source>Something follows the end.</source>
        <translation>结尾之后还有内容。</translation>
    </message>
    <message>
        <source>line %1, byte %2</source>
        <translation>第 %1 行，第 %2 字节</translation>
    </message>
    <message>
        <source>An object is expected.</source>
        <translation>此处应为对象。</translation>
    </message>
    <message>
        <source>An array is expected.</source>
        <translation>此处应为数组。</translation>
    </message>
    <message>
        <source>The file is nested too deeply.</source>
        <translation>文件嵌套过深。</translation>
    </message>
    <message>
        <source>A comma or the end of the list is expected.</source>
        <translation>此处应为逗号或列表结尾。</translation>
    </message>
    <message>
        <source>The name of a member is expected.</source>
        <translation>此处应为成员名。</translation>
    </message>
    <message>
        <source>A colon is expected.</source>
        <translation>此处应为冒号。</translation>
    </message>
    <message>
        <source>The text is not UTF-8.</source>
        <translation>文本不是 UTF-8。</translation>
    </message>
    <message>
        <source>The text does not end.</source>
        <translation>文本没有结尾。</translation>
    </message>
    <message>
        <source>The text has an unknown escape.</source>
        <translation>文本中有未知的转义。</translation>
    </message>
</context>
<context>
    <name>HtmlReport</name>
    <message>
        <source>Analysis report</source>
        <translation>分析报告</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>料号</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>步骤</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Waived</source>
        <translation>已豁免</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>未检查</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>检查项</translation>
    </message>
    <message>
        <source>Level %1</source>
        <translation>%1 级别</translation>
    </message>
    <message>
        <source>Checks</source>
        <translation>检查项</translation>
    </message>
    <message>
        <source>No check was run.</source>
        <translation>没有运行任何检查。</translation>
    </message>
    <message>
        <source>Check or layer</source>
        <translation>检查项或层</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>Not listed: %1.</source>
        <translation>未列出：%1。</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>章节</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>变化</translation>
    </message>
    <message>
        <source>Track widths</source>
        <translation>线宽</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>层</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>测量结果</translation>
    </message>
    <message>
        <source>Measurements: %1, of which %2 are listed.</source>
        <translation>测量结果共 %1 项，其中列出 %2 项。</translation>
    </message>
    <message>
        <source>id</source>
        <translation>标识</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>严重程度</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>测量值</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>限值</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>层</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Nets</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>The JSON report of the same run holds all of them.</source>
        <translation>同一次运行的 JSON 报告包含全部测量结果。</translation>
    </message>
    <message>
        <source>%1 holds all of them.</source>
        <translation>全部测量结果见 %1。</translation>
    </message>
    <message>
        <source>Measurements that are counted but not listed: %1.</source>
        <translation>已计数但未列出的测量结果：%1。</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>已消除</translation>
    </message>
    <message>
        <source>Better</source>
        <translation>改善</translation>
    </message>
    <message>
        <source>Worse</source>
        <translation>恶化</translation>
    </message>
    <message>
        <source>Not checked any more</source>
        <translation>不再检查</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>未变</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>此前</translation>
    </message>
    <message>
        <source>Is</source>
        <translation>现在</translation>
    </message>
    <message>
        <source>Id</source>
        <translation>标识</translation>
    </message>
    <message>
        <source>Violations</source>
        <translation>违规</translation>
    </message>
    <message>
        <source>Compared with the report of %1, step %2, dated %3.</source>
        <translation>与料号 %1、步骤 %2 的报告（日期 %3）比较。</translation>
    </message>
    <message>
        <source>The levels of %1 differ.</source>
        <translation>%1 的级别不同。</translation>
    </message>
    <message>
        <source>%1 more here</source>
        <translation>此处还有 %1 个</translation>
    </message>
    <message>
        <source>Violations marked: %1</source>
        <translation>标记的违规：%1</translation>
    </message>
    <message>
        <source>no tracks</source>
        <translation>无线路</translation>
    </message>
    <message>
        <source>Narrowest track of each layer</source>
        <translation>各层最窄的线路</translation>
    </message>
    <message>
        <source>Each mark is a violation; the number beside it is that of its row below. Marks that would cover each other are shown as one, the worst.</source>
        <translation>每个标记是一个违规，旁边的数字是其在下方表格中的序号。会互相遮挡的标记只显示最严重的一个。</translation>
    </message>
    <message>
        <source>There are no levels for this check: nothing is graded.</source>
        <translation>此检查项没有级别，因此不分级。</translation>
    </message>
    <message>
        <source>A measurement has the severity of a level that it does not exceed.</source>
        <translation>测量值不大于某级别时，即为该级别的严重程度。</translation>
    </message>
    <message>
        <source>A measurement has the severity of a level that it reaches.</source>
        <translation>测量值达到某级别时，即为该级别的严重程度。</translation>
    </message>
    <message>
        <source>Levels</source>
        <translation>级别</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>序号</translation>
    </message>
    <message>
        <source>Measurements, the worst first</source>
        <translation>测量结果（最严重的在前）</translation>
    </message>
    <message>
        <source>A click on the title of a column sorts the table; a click on a severity at the top of the page shows or hides its rows and marks.</source>
        <translation>点击列标题可对表格排序；点击页面顶部的严重程度可显示或隐藏相应的行和标记。</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>有效期至 %1</translation>
    </message>
    <message>
        <source>expired</source>
        <translation>已过期</translation>
    </message>
    <message>
        <source>matches no violation</source>
        <translation>不对应任何违规</translation>
    </message>
    <message>
        <source>Waivers that accept nothing</source>
        <translation>未起作用的豁免</translation>
    </message>
    <message>
        <source>Why</source>
        <translation>情况</translation>
    </message>
    <message>
        <source>Accepted by</source>
        <translation>批准人</translation>
    </message>
    <message>
        <source>On</source>
        <translation>批准日期</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>有效期至</translation>
    </message>
    <message>
        <source>These violations have been accepted. They are in none of the other counts.</source>
        <translation>这些违规已被接受，不计入其他数量。</translation>
    </message>
</context>
</TS>
