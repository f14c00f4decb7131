<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Workbench</name>
    <message>
        <source>Opening %1</source>
        <translation>正在打开 %1</translation>
    </message>
    <message>
        <source>Reading layer %1 (F1 stops)</source>
        <translation>正在读取层 %1（按 F1 停止）</translation>
    </message>
    <message>
        <source>Reading the nets (F1 stops)</source>
        <translation>正在读取网络（按 F1 停止）</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written.</source>
        <translation>无法写入文件“%1”。</translation>
    </message>
    <message>
        <source>The name of a report must end in %1; that of &quot;%2&quot; does not.</source>
        <translation>报告的文件名须以 %1 之一结尾，“%2”不是。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; already exists. Replace it?</source>
        <translation>文件“%1”已存在。是否替换？</translation>
    </message>
    <message>
        <source>Open the folder</source>
        <translation>打开所在文件夹</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Open the folder or the archive of a board</source>
        <translation>打开板的文件夹或压缩包</translation>
    </message>
    <message>
        <source>Boards: folders and archives (*.tgz *.tar.gz *.tar *.zip)</source>
        <translation>板：文件夹和压缩包 (*.tgz *.tar.gz *.tar *.zip)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
</context>
<context>
    <name>Workbench::AttributesPage</name>
    <message>
        <source>A wildcard pattern, for example *pad or .imp*</source>
        <translation>通配符，例如 *pad 或 .imp*</translation>
    </message>
    <message>
        <source>Attribute</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Takes a value</source>
        <translation>带值</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>Values of the file</source>
        <translation>文件中的值</translation>
    </message>
    <message>
        <source>Values offered by the library</source>
        <translation>库提供的值</translation>
    </message>
    <message>
        <source>Attribute catalogue</source>
        <translation>属性目录</translation>
    </message>
    <message>
        <source>CAM-mate nodes</source>
        <translation>CAM-mate 节点</translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation>显示(&amp;W)</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>no</source>
        <translation>否</translation>
    </message>
</context>
<context>
    <name>Workbench::BoardView</name>
    <message>
        <source>Board picture</source>
        <translation>板图</translation>
    </message>
    <message>
        <source>Drawing...</source>
        <translation>正在绘制...</translation>
    </message>
    <message>
        <source>No layer is shown</source>
        <translation>没有显示任何层</translation>
    </message>
    <message>
        <source>The job holds only the tables of the layer %1</source>
        <translation>料号中只有层 %1 的表头，没有图形</translation>
    </message>
    <message>
        <source>The layer %1 cannot be read: see the log</source>
        <translation>层 %1 无法读取，请看日志</translation>
    </message>
    <message>
        <source>The layer %1 has no features in this step</source>
        <translation>层 %1 在此步骤中没有图形</translation>
    </message>
</context>
<context>
    <name>Workbench::KeysDialog</name>
    <message>
        <source>Hot keys</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>Own file</source>
        <translation>自定义文件</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>功能名</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>元素</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>发现</translation>
    </message>
    <message>
        <source>Load the file again</source>
        <translation>重新加载文件</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>导出...</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Written to "%1".</source>
        <translation>已写入“%1”。</translation>
    </message>
    <message>
        <source>%1 is left out: the file has no name for what it does.</source>
        <translation>%1 未写入：文件中没有其功能的名称。</translation>
    </message>
    <message>
        <source>Export the hot keys</source>
        <translation>导出快捷键</translation>
    </message>
    <message>
        <source>never answers</source>
        <translation>从不响应</translation>
    </message>
    <message>
        <source>not available in this host</source>
        <translation>本程序中不可用</translation>
    </message>
    <message>
        <source>%1 holds %2 bindings. Findings: %3.</source>
        <translation>%1 含 %2 个绑定，发现 %3 条。</translation>
    </message>
    <message>
        <source>%1 cannot be loaded; the keys stay as they are.</source>
        <translation>%1 无法加载；按键保持不变。</translation>
    </message>
    <message>
        <source>There is no file %1; the default keys are in use.</source>
        <translation>没有文件 %1；使用默认按键。</translation>
    </message>
    <message>
        <source>Search commands and keys</source>
        <translation>搜索命令和按键</translation>
    </message>
    <message>
        <source>Press the new keys here</source>
        <translation>在此按下新的按键</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>Gives the selected command these keys instead of its own</source>
        <translation>将所选命令的按键改为这些按键</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Gives the selected command these keys as well</source>
        <translation>为所选命令再添加这些按键</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Takes the keys from the selected command</source>
        <translation>取消所选命令的按键</translation>
    </message>
    <message>
        <source>Default keys</source>
        <translation>恢复默认按键</translation>
    </message>
    <message>
        <source>Gives all commands their default keys; the file with yours is kept as a copy</source>
        <translation>所有命令恢复默认按键；您的文件保留为副本</translation>
    </message>
    <message>
        <source>The keys are not saved: %1</source>
        <translation>按键未保存：%1</translation>
    </message>
    <message>
        <source>The file that was there is now &quot;%1&quot;.</source>
        <translation>原有文件已另存为“%1”。</translation>
    </message>
    <message>
        <source>no keys</source>
        <translation>无按键</translation>
    </message>
    <message>
        <source>Select a command to change its keys.</source>
        <translation>请选择要更改按键的命令。</translation>
    </message>
    <message>
        <source>Press a key with Ctrl or Shift, or two plain keys one after the other.</source>
        <translation>请按 Ctrl 或 Shift 加一个键，或依次按两个普通键。</translation>
    </message>
    <message>
        <source>%1 begins a sequence: press the second key.</source>
        <translation>%1 是组合键序列的第一个键：请按第二个键。</translation>
    </message>
    <message>
        <source>%1 is free.</source>
        <translation>%1 未被占用。</translation>
    </message>
    <message>
        <source>The command has %1.</source>
        <translation>该命令已使用 %1。</translation>
    </message>
    <message>
        <source>%1 belongs to &quot;%2&quot;, which loses it.</source>
        <translation>%1 已被“%2”占用，更改后“%2”将失去该按键。</translation>
    </message>
    <message>
        <source>%1 cannot be a hot key: only letters, digits, arrows and some signs can, with Ctrl or Shift or in a pair of plain keys.</source>
        <translation>%1 不能用作快捷键：只能使用字母、数字、方向键和部分符号，并配合 Ctrl 或 Shift，或由两个普通键组成。</translation>
    </message>
</context>
<context>
    <name>Workbench::ComparePage</name>
    <message>
        <source>Compare</source>
        <translation>比较</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Only the part in view</source>
        <translation>仅比较可见部分</translation>
    </message>
    <message>
        <source>Looks at a smaller part with the same number of pixels, and so more finely</source>
        <translation>以同样多的像素查看较小的区域，因而更精细</translation>
    </message>
    <message>
        <source>The first layer</source>
        <translation>第一层</translation>
    </message>
    <message>
        <source>The second layer</source>
        <translation>第二层</translation>
    </message>
    <message>
        <source>Only in</source>
        <translation>仅存在于</translation>
    </message>
    <message>
        <source>Area (mm²)</source>
        <translation>面积 (mm²)</translation>
    </message>
    <message>
        <source>Size (mm)</source>
        <translation>尺寸 (mm)</translation>
    </message>
    <message>
        <source>Size (inch)</source>
        <translation>尺寸 (英寸)</translation>
    </message>
    <message>
        <source>Place (mm)</source>
        <translation>位置 (mm)</translation>
    </message>
    <message>
        <source>Place (inch)</source>
        <translation>位置 (英寸)</translation>
    </message>
    <message>
        <source>only in %1</source>
        <translation>仅在 %1 中</translation>
    </message>
    <message>
        <source>in both</source>
        <translation>两层共有</translation>
    </message>
    <message>
        <source>Choose two layers and compare them. Compared is what they draw in the step in front; the polarity of the matrix does not count.</source>
        <translation>选择两层进行比较。比较的是它们在当前步骤中绘制的图形，不考虑矩阵中的极性。</translation>
    </message>
    <message>
        <source>Comparing...</source>
        <translation>正在比较...</translation>
    </message>
    <message>
        <source>The comparison was stopped.</source>
        <translation>比较已停止。</translation>
    </message>
    <message>
        <source>There is not enough memory for the comparison.</source>
        <translation>内存不足，无法比较。</translation>
    </message>
    <message>
        <source>Both layers are empty in this step.</source>
        <translation>两层在此步骤中均为空。</translation>
    </message>
    <message>
        <source>The step has changed since: compare again.</source>
        <translation>此后步骤已更改，请重新比较。</translation>
    </message>
    <message>
        <source>No difference was seen.</source>
        <translation>未发现差异。</translation>
    </message>
    <message>
        <source>Only in %1: %2 mm² in %3 regions. Only in %4: %5 mm² in %6 regions.</source>
        <translation>仅在 %1 中：%2 mm²，共 %3 个区域。仅在 %4 中：%5 mm²，共 %6 个区域。</translation>
    </message>
    <message>
        <source>The largest region has %1 mm², the smallest %2 mm².</source>
        <translation>最大区域 %1 mm²，最小区域 %2 mm²。</translation>
    </message>
    <message>
        <source>In both: %1 mm².</source>
        <translation>两层共有：%1 mm²。</translation>
    </message>
    <message>
        <source>Listed are the largest and the smallest: %1 of %2.</source>
        <translation>仅列出最大和最小的区域：%2 个中的 %1 个。</translation>
    </message>
    <message>
        <source>Seen in pixels of %1 µm (%2 mil): what is thinner may be missed or seem a pixel wide, sizes are uncertain by as much, and edges that differ by half a pixel count as equal.</source>
        <translation>比较的像素为 %1 µm (%2 mil)：更细的图形可能漏检或显示为一个像素宽，尺寸误差不超过一个像素，边缘相差半个像素以内视为相同。</translation>
    </message>
    <message>
        <source>Only a part was compared, %1 x %2 mm; regions may be cut at its edge.</source>
        <translation>只比较了 %1 x %2 mm 的部分，区域可能在其边缘被截断。</translation>
    </message>
</context>
<context>
    <name>Workbench::CompareView</name>
    <message>
        <source>Comparison of two layers</source>
        <translation>两层的比较图</translation>
    </message>
</context>
<context>
    <name>Workbench::EdaPage</name>
    <message>
        <source>JSON object</source>
        <translation>JSON 对象</translation>
    </message>
    <message>
        <source>invalid</source>
        <translation>无效</translation>
    </message>
    <message>
        <source>Message to send</source>
        <translation>要发送的消息</translation>
    </message>
    <message>
        <source>JSON &amp;object</source>
        <translation>JSON 对象(&amp;O)</translation>
    </message>
    <message>
        <source>To &amp;port</source>
        <translation>发送到端口(&amp;P)</translation>
    </message>
    <message>
        <source>For example: %1</source>
        <translation>例如：%1</translation>
    </message>
    <message>
        <source>The port of this computer that the EDA tool listens on</source>
        <translation>EDA 工具在本机上监听的端口</translation>
    </message>
    <message>
        <source>Sen&amp;d</source>
        <translation>发送(&amp;D)</translation>
    </message>
    <message>
        <source>Sends the object without blanks and line ends</source>
        <translation>发送时去掉空格和换行</translation>
    </message>
    <message>
        <source>Received messages</source>
        <translation>收到的消息</translation>
    </message>
    <message>
        <source>L&amp;ist of the latest %1</source>
        <translation>最近 %1 条的列表(&amp;I)</translation>
    </message>
    <message>
        <source>Nothing to send yet.</source>
        <translation>还没有要发送的内容。</translation>
    </message>
    <message>
        <source>A JSON object; %1 bytes are sent.</source>
        <translation>是 JSON 对象；将发送 %1 字节。</translation>
    </message>
    <message>
        <source>Nothing has been sent from here yet.</source>
        <translation>还没有从这里发送过。</translation>
    </message>
    <message>
        <source>Sent %1 bytes to port %2. It is not known whether anybody listens there.</source>
        <translation>已向端口 %2 发送 %1 字节。无法得知是否有程序在监听。</translation>
    </message>
    <message>
        <source>Not sent: there is no link.</source>
        <translation>未发送：没有链接。</translation>
    </message>
    <message>
        <source>Not sent: %1 is not a port.</source>
        <translation>未发送：%1 不是端口号。</translation>
    </message>
    <message>
        <source>Not sent: %1 bytes do not fit into one message.</source>
        <translation>未发送：一条消息容不下 %1 字节。</translation>
    </message>
    <message>
        <source>Not sent: %1</source>
        <translation>未发送：%1</translation>
    </message>
    <message>
        <source>There is no link.</source>
        <translation>没有链接。</translation>
    </message>
    <message>
        <source>The link is open: messages are received on port %1.</source>
        <translation>链接已打开：在端口 %1 接收消息。</translation>
    </message>
    <message>
        <source>No link to receive on: port %1 could not be opened. Messages can be sent all the same.
Reason: %2</source>
        <translation>没有可接收的链接：无法打开端口 %1。仍然可以发送消息。
原因：%2</translation>
    </message>
    <message>
        <source>Sent: %1     Not sent: %2     Received: %3</source>
        <translation>已发送：%1     未发送：%2     已接收：%3</translation>
    </message>
    <message>
        <source>Latest error: %1</source>
        <translation>最近的错误：%1</translation>
    </message>
    <message>
        <source>Nothing has been received yet.
What an EDA tool sends to port %1 of this computer is listed here.</source>
        <translation>还没有收到消息。
EDA 工具发到本机端口 %1 的消息会列在这里。</translation>
    </message>
    <message>
        <source>Nothing can be received.
Close the program that has port %1, then start this one again.</source>
        <translation>无法接收消息。
请关闭占用端口 %1 的程序，再重新启动本程序。</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>清空(&amp;C)</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>字节</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>种类</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>The selected message, indented</source>
        <translation>选中的消息（已缩进）</translation>
    </message>
    <message>
        <source>EDA link: port %1 is taken</source>
        <translation>EDA 链接：端口 %1 被占用</translation>
    </message>
</context>
<context>
    <name>Workbench::EnginePane</name>
    <message>
        <source>Record</source>
        <translation>记录</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
</context>
<context>
    <name>Workbench::FeaturePane</name>
    <message>
        <source>Symbol</source>
        <translation>符号</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>宽</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>尺寸</translation>
    </message>
    <message>
        <source>Net</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>层</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Polarity</source>
        <translation>极性</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Positive</source>
        <translation>正</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>负</translation>
    </message>
    <message>
        <source>Pad %1</source>
        <translation>焊盘 %1</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>线 %1</translation>
    </message>
    <message>
        <source>Arc %1</source>
        <translation>圆弧 %1</translation>
    </message>
    <message>
        <source>Surface %1</source>
        <translation>面 %1</translation>
    </message>
    <message>
        <source>%1, part of a text</source>
        <translation>%1，属于文字</translation>
    </message>
    <message>
        <source>Nothing is selected. A click selects a feature, with Ctrl one more.</source>
        <translation>未选中图形。单击选中一个，按住 Ctrl 单击可加选。</translation>
    </message>
    <message>
        <source>%1 features</source>
        <translation>%1 个图形</translation>
    </message>
    <message>
        <source>The features have several symbols, or none.</source>
        <translation>所选图形的符号不同，或没有符号。</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>around %1</source>
        <translation>中心 %1</translation>
    </message>
    <message>
        <source>from %1
to %2</source>
        <translation>起点 %1
终点 %2</translation>
    </message>
    <message>
        <source>about %1</source>
        <translation>圆心 %1</translation>
    </message>
    <message>
        <source>length %1</source>
        <translation>长度 %1</translation>
    </message>
</context>
<context>
    <name>Workbench::FilterBar</name>
    <message>
        <source>Ty&amp;pe</source>
        <translation>类型(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Context</source>
        <translation>类别(&amp;C)</translation>
    </message>
    <message>
        <source>S&amp;ide</source>
        <translation>面(&amp;I)</translation>
    </message>
    <message>
        <source>P&amp;olarity</source>
        <translation>极性(&amp;O)</translation>
    </message>
    <message>
        <source>every layer</source>
        <translation>所有层</translation>
    </message>
    <message>
        <source>Words separated by |; case matters. A | at the end adds the empty word, which accepts layers without a value here.</source>
        <translation>以 | 连接的词，区分大小写。末尾的 | 之后是空词，匹配此项为空的层。</translation>
    </message>
    <message>
        <source>Hi&amp;de others</source>
        <translation>隐藏其他层(&amp;D)</translation>
    </message>
    <message>
        <source>Hides layers that do not match instead of greying them</source>
        <translation>隐藏不匹配的层，否则以灰色显示</translation>
    </message>
    <message>
        <source>For analysis</source>
        <translation>分析用层</translation>
    </message>
    <message>
        <source>Shows the layers that analysis and checks read</source>
        <translation>显示分析和检查所读取的层</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>清除(&amp;L)</translation>
    </message>
    <message>
        <source>Shows all layers</source>
        <translation>显示所有层</translation>
    </message>
    <message>
        <source>%1 of %2 layers</source>
        <translation>%1 / %2 层</translation>
    </message>
    <message>
        <source>%1: "%2" is not a word of this field.</source>
        <translation>%1：此项没有“%2”这个词。</translation>
    </message>
    <message>
        <source>%1: no layer of the job is "%2".</source>
        <translation>%1：料号中没有“%2”的层。</translation>
    </message>
    <message>
        <source>These are the layers that analysis and checks read.</source>
        <translation>这些是分析和检查所读取的层。</translation>
    </message>
    <message>
        <source>"%1" is not one of them.</source>
        <translation>“%1”不在其中。</translation>
    </message>
    <message>
        <source>All layers are shown.</source>
        <translation>显示所有层。</translation>
    </message>
    <message>
        <source>No layer matches.</source>
        <translation>没有匹配的层。</translation>
    </message>
    <message>
        <source>"%1" matches.</source>
        <translation>“%1”匹配。</translation>
    </message>
    <message>
        <source>"%1" is left out by: %2.</source>
        <translation>“%1”被此项排除：%2。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Parts of names separated by |, with * for any text and ? for any letter; case does not matter.</source>
        <translation>层名的一部分，多个以 | 分隔；* 代表任意文字，? 代表任意一个字符；不区分大小写。</translation>
    </message>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
    <message>
        <source>More ways to choose layers, and why one is left out</source>
        <translation>更多选择层的方式，以及某层被排除的原因</translation>
    </message>
</context>
<context>
    <name>Workbench::HotkeyCommands</name>
    <message>
        <source>Select all</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Reverse the selection</source>
        <translation>反选</translation>
    </message>
    <message>
        <source>CAM guide</source>
        <translation>CAM 向导</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>负片</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>轮廓</translation>
    </message>
    <message>
        <source>Width mode</source>
        <translation>线宽模式</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Move within the layer</source>
        <translation>同层移动</translation>
    </message>
    <message>
        <source>Copy to the edit buffer</source>
        <translation>复制到编辑缓冲区</translation>
    </message>
    <message>
        <source>Paste from the edit buffer</source>
        <translation>从编辑缓冲区粘贴</translation>
    </message>
    <message>
        <source>The function without a name</source>
        <translation>无名称的功能</translation>
    </message>
    <message>
        <source>Move: snap</source>
        <translation>移动: 捕捉</translation>
    </message>
    <message>
        <source>Move: home</source>
        <translation>移动: 全图</translation>
    </message>
    <message>
        <source>Move: up</source>
        <translation>移动: 上</translation>
    </message>
    <message>
        <source>Move: down</source>
        <translation>移动: 下</translation>
    </message>
    <message>
        <source>Move: right</source>
        <translation>移动: 右</translation>
    </message>
    <message>
        <source>Move: left</source>
        <translation>移动: 左</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
    <message>
        <source>Contourize</source>
        <translation>轮廓化</translation>
    </message>
    <message>
        <source>Pan: up</source>
        <translation>平移: 上</translation>
    </message>
    <message>
        <source>Pan: down</source>
        <translation>平移: 下</translation>
    </message>
    <message>
        <source>Pan: right</source>
        <translation>平移: 右</translation>
    </message>
    <message>
        <source>Pan: left</source>
        <translation>平移: 左</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>比较</translation>
    </message>
    <message>
        <source>Centre at the pointer</source>
        <translation>以指针处为中心</translation>
    </message>
    <message>
        <source>Copy the original</source>
        <translation>复制原件</translation>
    </message>
    <message>
        <source>Transform</source>
        <translation>变换</translation>
    </message>
    <message>
        <source>Select the same features</source>
        <translation>选择相同图形</translation>
    </message>
    <message>
        <source>operations left: %1</source>
        <translation>剩余操作：%1</translation>
    </message>
    <message>
        <source>selected features: %1</source>
        <translation>选中的图形：%1</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>测量</translation>
    </message>
    <message>
        <source>Snap: skeleton</source>
        <translation>捕捉: 骨架</translation>
    </message>
    <message>
        <source>Snap: off</source>
        <translation>捕捉: 关闭</translation>
    </message>
    <message>
        <source>Snap: grid</source>
        <translation>捕捉: 网格</translation>
    </message>
    <message>
        <source>Snap: centre</source>
        <translation>捕捉: 中心</translation>
    </message>
    <message>
        <source>Snap: arc</source>
        <translation>捕捉: 圆弧</translation>
    </message>
    <message>
        <source>Snap: edge</source>
        <translation>捕捉: 边缘</translation>
    </message>
    <message>
        <source>Snap: crossing</source>
        <translation>捕捉: 交点</translation>
    </message>
    <message>
        <source>Snap: middle</source>
        <translation>捕捉: 中点</translation>
    </message>
    <message>
        <source>Snap: profile</source>
        <translation>捕捉: 轮廓</translation>
    </message>
    <message>
        <source>Snap: advanced</source>
        <translation>捕捉: 高级</translation>
    </message>
    <message>
        <source>Highlight</source>
        <translation>高亮</translation>
    </message>
    <message>
        <source>on</source>
        <translation>开</translation>
    </message>
    <message>
        <source>off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>not available in this host</source>
        <translation>本程序中不可用</translation>
    </message>
    <message>
        <source>from %1; press again at the other end, Escape ends</source>
        <translation>起点 %1；在终点再按一次，按 Esc 结束</translation>
    </message>
</context>
<context>
    <name>Workbench::JsonText</name>
    <message>
        <source>A JSON object is expected; it begins with a brace.</source>
        <translation>应为以花括号开头的 JSON 对象。</translation>
    </message>
    <message>
        <source>Line %1, near column %2: %3</source>
        <translation>第 %1 行，第 %2 列附近：%3</translation>
    </message>
    <message>
        <source>a name in quotation marks, a comma or a closing brace is expected.</source>
        <translation>应为带引号的名称、逗号或右花括号。</translation>
    </message>
    <message>
        <source>a comma or a closing bracket is expected.</source>
        <translation>应为逗号或右方括号。</translation>
    </message>
    <message>
        <source>a colon is expected after the name.</source>
        <translation>名称后面应有冒号。</translation>
    </message>
    <message>
        <source>a name or a value is expected.</source>
        <translation>应为名称或值。</translation>
    </message>
    <message>
        <source>the text ends too early.</source>
        <translation>文本过早结束。</translation>
    </message>
    <message>
        <source>this is not a number.</source>
        <translation>这不是数字。</translation>
    </message>
    <message>
        <source>the string has no closing quotation mark.</source>
        <translation>字符串缺少结束的引号。</translation>
    </message>
    <message>
        <source>the string has a backslash that begins no escape.</source>
        <translation>字符串中的反斜杠不构成转义。</translation>
    </message>
    <message>
        <source>the string is not UTF-8.</source>
        <translation>字符串不是 UTF-8。</translation>
    </message>
    <message>
        <source>the values are nested too deeply.</source>
        <translation>值嵌套得太深。</translation>
    </message>
    <message>
        <source>the text is too long.</source>
        <translation>文本太长。</translation>
    </message>
    <message>
        <source>more text follows after the object.</source>
        <translation>对象之后还有多余的文本。</translation>
    </message>
    <message>
        <source>a value is expected.</source>
        <translation>应为一个值。</translation>
    </message>
</context>
<context>
    <name>Workbench::LayerTable</name>
    <message>
        <source>Features</source>
        <translation>图形数</translation>
    </message>
    <message>
        <source>Ticked layers are drawn beside the selected one (Space)</source>
        <translation>勾选的层与选中的层一起显示（空格键）</translation>
    </message>
    <message>
        <source>not counted, since reading was stopped</source>
        <translation>读取被停止，未计数</translation>
    </message>
    <message>
        <source>the job holds only the tables of this layer</source>
        <translation>料号中只有此层的表头</translation>
    </message>
    <message>
        <source>Colour of the layer %1</source>
        <translation>层 %1 的颜色</translation>
    </message>
    <message>
        <source>Show only %1</source>
        <translation>仅显示 %1</translation>
    </message>
    <message>
        <source>Show all copper</source>
        <translation>显示所有铜层</translation>
    </message>
    <message>
        <source>Untick</source>
        <translation>取消勾选</translation>
    </message>
    <message>
        <source>Tick</source>
        <translation>勾选</translation>
    </message>
    <message>
        <source>Compare %1 with %2</source>
        <translation>比较 %1 与 %2</translation>
    </message>
    <message>
        <source>Compare with...</source>
        <translation>与其他层比较...</translation>
    </message>
    <message>
        <source>Copy the name</source>
        <translation>复制层名</translation>
    </message>
    <message>
        <source>Colour...</source>
        <translation>颜色...</translation>
    </message>
    <message>
        <source>Its own colour</source>
        <translation>恢复默认颜色</translation>
    </message>
</context>
<context>
    <name>Workbench::MainWindow</name>
    <message>
        <source>Pan&amp;es</source>
        <translation>窗格(&amp;E)</translation>
    </message>
    <message>
        <source>Closes this pane; the View menu opens it again</source>
        <translation>关闭此窗格，可在“视图”菜单中重新打开</translation>
    </message>
    <message>
        <source>Repeats the step %1: %2 times</source>
        <translation>重复步骤 %1：%2 次</translation>
    </message>
    <message>
        <source>&amp;Hot keys</source>
        <translation>快捷键(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Whole board</source>
        <translation>整板(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;All features</source>
        <translation>全部图形(&amp;A)</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>缩小(&amp;O)</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>放大(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Tick all layers</source>
        <translation>勾选全部层(&amp;T)</translation>
    </message>
    <message>
        <source>U&amp;ntick all layers</source>
        <translation>取消全部勾选(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Page</source>
        <translation>页面(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Using the board picture</source>
        <translation>板图的使用(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>关于(&amp;A)</translation>
    </message>
    <message>
        <source>Using the board picture</source>
        <translation>板图的使用</translation>
    </message>
    <message>
        <source>The wheel zooms about the pointer, dragging moves the board, a click selects a feature or picks a mark.
With the picture in focus the arrow keys move the board, + and - zoom, Home shows the whole board.
Ticked layers are drawn beside the selected one; Space in the list of layers sets and clears the tick.
Ctrl with a click selects or deselects a feature; the Delete key deletes the selection.</source>
        <translation>滚轮以指针为中心缩放，拖动移动板图，单击选中图形或选取标记。
板图获得焦点时，方向键移动，+ 和 - 缩放，Home 显示整板。
勾选的层与选中的层一起显示；在层列表中按空格键勾选或取消。
按住 Ctrl 单击可选中图形或取消；Delete 键删除选中的图形。</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>Delete the selected features</source>
        <translation>删除选中的图形</translation>
    </message>
    <message>
        <source>Nothing is selected. Ctrl with a click selects a feature.</source>
        <translation>没有选中的图形：按住 Ctrl 单击可选中。</translation>
    </message>
    <message>
        <source>Nothing was deleted: %1</source>
        <translation>未删除：%1</translation>
    </message>
    <message>
        <source>Deleted features: %1</source>
        <translation>已删除的图形：%1</translation>
    </message>
    <message>
        <source>Refere&amp;nces</source>
        <translation>参考层(&amp;N)</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>The reference host of UIAPICommon %1: shows a board's job through the library and the default engine.</source>
        <translation>UIAPICommon %1 的参考宿主：通过库和默认引擎显示料号。</translation>
    </message>
    <message>
        <source>&amp;Board</source>
        <translation>板图(&amp;B)</translation>
    </message>
    <message>
        <source>Step %1</source>
        <translation>步骤 %1</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>层</translation>
    </message>
    <message>
        <source>What the engine was told</source>
        <translation>引擎收到的内容</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>View</source>
        <translation>视图</translation>
    </message>
    <message>
        <source>Switches the unit of the shown step's view</source>
        <translation>切换当前步骤视图的单位</translation>
    </message>
    <message>
        <source>&amp;Save flag</source>
        <translation>保存标志(&amp;S)</translation>
    </message>
    <message>
        <source>Makes the engine also write what it is told to %1</source>
        <translation>让引擎把收到的内容同时写入 %1</translation>
    </message>
    <message>
        <source>&amp;Feature</source>
        <translation>图形(&amp;F)</translation>
    </message>
    <message>
        <source>Changes the selected features</source>
        <translation>更改选中的图形</translation>
    </message>
    <message>
        <source>Language of all texts</source>
        <translation>界面语言</translation>
    </message>
    <message>
        <source>S&amp;ymbols</source>
        <translation>符号(&amp;Y)</translation>
    </message>
    <message>
        <source>Se&amp;ttings</source>
        <translation>设置(&amp;T)</translation>
    </message>
    <message>
        <source>Te&amp;mplates</source>
        <translation>模板(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Attributes</source>
        <translation>属性(&amp;A)</translation>
    </message>
    <message>
        <source>EDA lin&amp;k</source>
        <translation>EDA 链接(&amp;K)</translation>
    </message>
    <message>
        <source>Nothing with a symbol is selected. A click selects a feature.</source>
        <translation>未选中带符号的图形。单击可选中图形。</translation>
    </message>
    <message>
        <source>Nothing was changed: %1</source>
        <translation>未更改：%1</translation>
    </message>
    <message>
        <source>Features changed to %1: %2</source>
        <translation>已改为 %1 的图形：%2</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>图形</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>另存为(&amp;S)...</translation>
    </message>
    <message>
        <source>%1[*] (%2) - UIAPICommon workbench</source>
        <translation>%1[*] (%2) - UIAPICommon 工作台</translation>
    </message>
    <message>
        <source>Move the pointer over the board</source>
        <translation>请把指针移到板图上</translation>
    </message>
    <message>
        <source>Zoom %1 %</source>
        <translation>缩放 %1 %</translation>
    </message>
    <message>
        <source>&amp;Unit: %1</source>
        <translation>单位：%1(&amp;U)</translation>
    </message>
    <message>
        <source>Board outline of step %1: %2</source>
        <translation>步骤 %1 的板框：%2</translation>
    </message>
    <message>
        <source>Step %1 has no profile</source>
        <translation>步骤 %1 没有板框</translation>
    </message>
    <message>
        <source>&amp;Results</source>
        <translation>检查结果(&amp;R)</translation>
    </message>
    <message>
        <source>the checks were stopped</source>
        <translation>检查已停止</translation>
    </message>
    <message>
        <source>the checks failed: %1</source>
        <translation>检查失败：%1</translation>
    </message>
    <message>
        <source>&amp;Recent boards</source>
        <translation>最近的板(&amp;R)</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>比较</translation>
    </message>
    <message>
        <source>Next &amp;violation</source>
        <translation>下一个违规(&amp;V)</translation>
    </message>
    <message>
        <source>Previous violation</source>
        <translation>上一个违规</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>打开(&amp;O)...</translation>
    </message>
</context>
<context>
    <name>Workbench::ReferenceEditor</name>
    <message>
        <source>Job</source>
        <translation>料号</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>步骤</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>层</translation>
    </message>
    <message>
        <source>&amp;Job</source>
        <translation>料号(&amp;J)</translation>
    </message>
    <message>
        <source>Ste&amp;p</source>
        <translation>步骤(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Layers</source>
        <translation>层(&amp;L)</translation>
    </message>
    <message>
        <source>A&amp;dd</source>
        <translation>添加(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>更改(&amp;C)</translation>
    </message>
    <message>
        <source>Rem&amp;ove</source>
        <translation>移除(&amp;O)</translation>
    </message>
    <message>
        <source>Reference layers of %1, step %2</source>
        <translation>%1 的参考层，步骤 %2</translation>
    </message>
    <message>
        <source>This step has no reference layers. Tick some and add them.</source>
        <translation>此步骤没有参考层。请勾选后添加。</translation>
    </message>
    <message>
        <source>A reference needs a job, a step and at least one layer.</source>
        <translation>参考需要料号、步骤和至少一个层。</translation>
    </message>
</context>
<context>
    <name>Workbench::ReferencesPage</name>
    <message>
        <source>What the library keeps</source>
        <translation>库中保存的内容</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>含义</translation>
    </message>
    <message>
        <source>The library keeps no reference layers.</source>
        <translation>库中没有参考层。</translation>
    </message>
    <message>
        <source>Ne&amp;w name</source>
        <translation>新名称(&amp;W)</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Delete...</source>
        <translation>删除...</translation>
    </message>
    <message>
        <source>The library is told as if the host had renamed or deleted it; the files of the job stay as they are.</source>
        <translation>如同宿主已重命名或删除一样通知库；料号的文件保持不变。</translation>
    </message>
    <message>
        <source>job with references</source>
        <translation>有参考层的料号</translation>
    </message>
    <message>
        <source>its step</source>
        <translation>其步骤</translation>
    </message>
    <message>
        <source>refers to the job</source>
        <translation>参考的料号</translation>
    </message>
    <message>
        <source>step of it</source>
        <translation>该料号的步骤</translation>
    </message>
    <message>
        <source>layer</source>
        <translation>层</translation>
    </message>
    <message>
        <source>A name is needed.</source>
        <translation>需要名称。</translation>
    </message>
    <message>
        <source>This name is taken.</source>
        <translation>此名称已被使用。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Tell the library that "%1" is deleted? All references to it go as well.</source>
        <translation>通知库“%1”已删除？对它的所有参考也将移除。</translation>
    </message>
</context>
<context>
    <name>Workbench::SettingsPage</name>
    <message>
        <source>Server address</source>
        <translation>服务器地址</translation>
    </message>
    <message>
        <source>Client address</source>
        <translation>客户端地址</translation>
    </message>
    <message>
        <source>Server port</source>
        <translation>服务器端口</translation>
    </message>
    <message>
        <source>Database path</source>
        <translation>数据库路径</translation>
    </message>
    <message>
        <source>Share path</source>
        <translation>共享路径</translation>
    </message>
    <message>
        <source>Operating system code</source>
        <translation>操作系统代码</translation>
    </message>
    <message>
        <source>Timeout</source>
        <translation>超时</translation>
    </message>
    <message>
        <source>Selection-outside hint</source>
        <translation>选择区域外提示</translation>
    </message>
    <message>
        <source>Calculation threads</source>
        <translation>计算线程数</translation>
    </message>
    <message>
        <source>Backup layers take the suffix</source>
        <translation>备份层使用后缀</translation>
    </message>
    <message>
        <source>Backup layer suffix</source>
        <translation>备份层后缀</translation>
    </message>
    <message>
        <source>Layer copy suffix</source>
        <translation>层复制后缀</translation>
    </message>
    <message>
        <source>Movement factor</source>
        <translation>移动系数</translation>
    </message>
    <message>
        <source>Shift factor</source>
        <translation>偏移系数</translation>
    </message>
    <message>
        <source>Contour accuracy</source>
        <translation>轮廓精度</translation>
    </message>
    <message>
        <source>Hot keys may be modified</source>
        <translation>允许修改快捷键</translation>
    </message>
    <message>
        <source>Python home</source>
        <translation>Python 目录</translation>
    </message>
    <message>
        <source>missing file</source>
        <translation>文件缺失</translation>
    </message>
    <message>
        <source>cannot be opened</source>
        <translation>无法打开</translation>
    </message>
    <message>
        <source>not JSON</source>
        <translation>不是 JSON</translation>
    </message>
    <message>
        <source>missing key</source>
        <translation>缺少键</translation>
    </message>
    <message>
        <source>wrong type</source>
        <translation>类型错误</translation>
    </message>
    <message>
        <source>unknown key</source>
        <translation>未知键</translation>
    </message>
    <message>
        <source>duplicate</source>
        <translation>重复</translation>
    </message>
    <message>
        <source>not read back</source>
        <translation>不会读回</translation>
    </message>
    <message>
        <source>index taken</source>
        <translation>序号已占用</translation>
    </message>
    <message>
        <source>no backup</source>
        <translation>没有备份</translation>
    </message>
    <message>
        <source>Settings of server.json</source>
        <translation>server.json 的设置</translation>
    </message>
    <message>
        <source>What the loaders found</source>
        <translation>读取时的发现</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>键</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>read at start only</source>
        <translation>仅启动时读取</translation>
    </message>
    <message>
        <source>saved at once</source>
        <translation>立即保存</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>未保存</translation>
    </message>
    <message>
        <source>All files were read, and nothing is wrong with them.</source>
        <translation>全部文件已读取，没有问题。</translation>
    </message>
    <message>
        <source>Findings: %1</source>
        <translation>发现：%1</translation>
    </message>
</context>
<context>
    <name>Workbench::SymbolsPage</name>
    <message>
        <source>As stored</source>
        <translation>存储名称</translation>
    </message>
    <message>
        <source>Stored in</source>
        <translation>存储单位</translation>
    </message>
    <message>
        <source>In mil</source>
        <translation>以 mil 表示</translation>
    </message>
    <message>
        <source>In micrometres (µm)</source>
        <translation>以微米 (µm) 表示</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>图形数</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>描述</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>函数</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>%1 by each function, unit %2</source>
        <translation>%1 经各函数处理，单位 %2</translation>
    </message>
</context>
<context>
    <name>Workbench::TemplatesPage</name>
    <message>
        <source>Index</source>
        <translation>序号</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>当前</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>模板</translation>
    </message>
    <message>
        <source>How the layers are recognised</source>
        <translation>层的识别方式</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>角色</translation>
    </message>
    <message>
        <source>Name begins with</source>
        <translation>名称开头</translation>
    </message>
    <message>
        <source>Name ends with</source>
        <translation>名称结尾</translation>
    </message>
    <message>
        <source>Use as current</source>
        <translation>设为当前</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save as new</source>
        <translation>另存为新模板</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>Current template: %1</source>
        <translation>当前模板：%1</translation>
    </message>
    <message>
        <source>Save and Delete change the file "%1".</source>
        <translation>保存和删除会更改文件“%1”。</translation>
    </message>
    <message>
        <source>This template is a shipped one.</source>
        <translation>此模板是随附的。</translation>
    </message>
    <message>
        <source>This template shares the file "%1" with others.</source>
        <translation>此模板与其他模板共用文件“%1”。</translation>
    </message>
    <message>
        <source>Save makes a copy of it under a new index; Delete lasts until the next start.</source>
        <translation>保存会以新序号另存副本；删除只在下次启动前有效。</translation>
    </message>
    <message>
        <source>The file "%1" was not saved; what you see lasts until the next start.</source>
        <translation>文件“%1”未能保存；所见内容只保留到下次启动。</translation>
    </message>
    <message>
        <source>The file "%1" already exists. Choose another name.</source>
        <translation>文件“%1”已存在，请换一个名称。</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>The file "%1" cannot be deleted.</source>
        <translation>文件“%1”无法删除。</translation>
    </message>
    <message>
        <source>The template &quot;%1&quot; was changed and is not saved. Discard the changes?</source>
        <translation>模板“%1”已更改但尚未保存。要放弃更改吗？</translation>
    </message>
    <message>
        <source>Not saved yet.</source>
        <translation>尚未保存。</translation>
    </message>
</context>
<context>
    <name>Workbench::LevelsEditor</name>
    <message>
        <source>Re&amp;d</source>
        <translation>红(&amp;D)</translation>
    </message>
    <message>
        <source>Yell&amp;ow</source>
        <translation>黄(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Green</source>
        <translation>绿(&amp;G)</translation>
    </message>
</context>
<context>
    <name>Workbench::ResultsPage</name>
    <message>
        <source>Waivers</source>
        <translation>豁免</translation>
    </message>
    <message>
        <source>Waivers (*.json)</source>
        <translation>豁免 (*.json)</translation>
    </message>
    <message>
        <source>Wai&amp;ve...</source>
        <translation>豁免(&amp;V)...</translation>
    </message>
    <message>
        <source>Accepts the selected violation: it is counted apart</source>
        <translation>接受所选的违规：单独计数</translation>
    </message>
    <message>
        <source>Export the summary</source>
        <translation>导出汇总</translation>
    </message>
    <message>
        <source>Summary (*.json)</source>
        <translation>汇总 (*.json)</translation>
    </message>
    <message>
        <source>Export the report</source>
        <translation>导出报告</translation>
    </message>
    <message>
        <source>HTML report (*.html);;JSON report (*.json);;CSV report (*.csv)</source>
        <translation>HTML 报告 (*.html);;JSON 报告 (*.json);;CSV 报告 (*.csv)</translation>
    </message>
    <message>
        <source>Checks</source>
        <translation>检查</translation>
    </message>
    <message>
        <source>Measuring step %1 (F1 stops)</source>
        <translation>正在测量 步骤 %1（按 F1 停止）</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Run the &amp;checks</source>
        <translation>运行检查(&amp;C)</translation>
    </message>
    <message>
        <source>Measures the step that the board page shows and files the results</source>
        <translation>测量板图页所示的步骤并归档结果</translation>
    </message>
    <message>
        <source>Sho&amp;w on the board</source>
        <translation>在板图上显示(&amp;W)</translation>
    </message>
    <message>
        <source>E&amp;xport summary...</source>
        <translation>导出汇总(&amp;X)...</translation>
    </message>
    <message>
        <source>Ex&amp;port report...</source>
        <translation>导出报告(&amp;P)...</translation>
    </message>
    <message>
        <source>Save &amp;levels</source>
        <translation>保存级别(&amp;L)</translation>
    </message>
    <message>
        <source>Results by check and layer</source>
        <translation>按检查项和层的结果</translation>
    </message>
    <message>
        <source>Smallest track width of each layer</source>
        <translation>各层最小线宽</translation>
    </message>
    <message>
        <source>Smallest track width of each layer (%1)</source>
        <translation>各层最小线宽 (%1)</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>未检查</translation>
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
        <source>There was nothing to check in step %1.</source>
        <translation>步骤 %1 中没有可检查的内容。</translation>
    </message>
    <message>
        <source>The checks have not been run yet. They measure step %1, the one on the board page.</source>
        <translation>尚未运行检查。检查将测量板图页所示的步骤 %1。</translation>
    </message>
    <message>
        <source>The checks of step %1 failed: %2</source>
        <translation>步骤 %1 的检查失败：%2</translation>
    </message>
    <message>
        <source>The checks were stopped; these are the results of the run before.</source>
        <translation>检查已停止；以下为上一次的结果。</translation>
    </message>
    <message>
        <source>The checks were stopped.</source>
        <translation>检查已停止。</translation>
    </message>
    <message>
        <source>No levels: everything is shown without colour.</source>
        <translation>没有级别：全部不着色显示。</translation>
    </message>
    <message>
        <source>Step %1</source>
        <translation>步骤 %1</translation>
    </message>
    <message>
        <source>Levels (%1)</source>
        <translation>级别 (%1)</translation>
    </message>
    <message>
        <source>Select a check to see its levels.</source>
        <translation>选择检查项以查看其级别。</translation>
    </message>
    <message>
        <source>Levels of %1 (%2)</source>
        <translation>%1 的级别 (%2)</translation>
    </message>
    <message>
        <source>The range files have no levels for this check: it is shown without colour.</source>
        <translation>范围文件中没有此检查项的级别：不着色显示。</translation>
    </message>
    <message>
        <source>These levels contradict each other and grade nothing.</source>
        <translation>这些级别相互矛盾：不着色。</translation>
    </message>
    <message>
        <source>Not saved: levels of %1 were changed.</source>
        <translation>未保存：%1 的级别已更改。</translation>
    </message>
    <message>
        <source>As in the range file %1.json.</source>
        <translation>与范围文件 %1.json 一致。</translation>
    </message>
    <message>
        <source>Levels</source>
        <translation>级别</translation>
    </message>
    <message>
        <source>There is no violation among the results shown.</source>
        <translation>所显示的结果中没有违规。</translation>
    </message>
    <message>
        <source>The checks have not been run yet.</source>
        <translation>尚未运行检查。</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>上一个</translation>
    </message>
    <message>
        <source>Shows the violation before</source>
        <translation>显示上一个违规</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一个</translation>
    </message>
    <message>
        <source>Shows the next violation</source>
        <translation>显示下一个违规</translation>
    </message>
    <message>
        <source>Run aga&amp;in</source>
        <translation>重新运行(&amp;I)</translation>
    </message>
    <message>
        <source>Out of date: step %1 has been changed since it was measured.</source>
        <translation>结果已过期：步骤 %1 在测量之后有改动。</translation>
    </message>
    <message>
        <source>Out of date: a level is now larger than the spacings that were listed.</source>
        <translation>结果已过期：有级别大于已列出的间距范围。</translation>
    </message>
    <message>
        <source>Export these results all the same?</source>
        <translation>仍要导出这些结果吗？</translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation>已写入：%1</translation>
    </message>
</context>
<context>
    <name>Workbench::TrackWidthChart</name>
    <message>
        <source>no tracks</source>
        <translation>无线路</translation>
    </message>
    <message>
        <source>No copper layer was measured.</source>
        <translation>没有测量任何铜层。</translation>
    </message>
</context>
<context>
    <name>Workbench::Desk</name>
    <message>
        <source>Opening %1</source>
        <translation>正在打开 %1</translation>
    </message>
    <message>
        <source>Unpacking the archive (F1 stops)</source>
        <translation>正在解压压缩包（按 F1 停止）</translation>
    </message>
    <message>
        <source>Reading the job (F1 stops)</source>
        <translation>正在读取任务（按 F1 停止）</translation>
    </message>
    <message>
        <source>The job has no step &quot;%1&quot;.</source>
        <translation>该任务没有步骤“%1”。</translation>
    </message>
    <message>
        <source>Open a board</source>
        <translation>打开板</translation>
    </message>
</context>
<context>
    <name>Workbench::SaveAs</name>
    <message>
        <source>Save the board as a new folder</source>
        <translation>将板另存到新文件夹</translation>
    </message>
    <message>
        <source>The board was not saved: %1</source>
        <translation>板未保存：%1</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <translation>已保存到 %1</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>更改未保存</translation>
    </message>
    <message>
        <source>The board %1 has changes that are not saved.</source>
        <translation>板 %1 的更改尚未保存。</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>另存为(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>放弃更改(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
</context>
<context>
    <name>Workbench::StartPage</name>
    <message>
        <source>UIAPICommon workbench</source>
        <translation>UIAPICommon 工作台</translation>
    </message>
    <message>
        <source>Open the job of a board, or drop its folder or archive onto this window.</source>
        <translation>打开一块板的任务，或将其文件夹或压缩包拖放到此窗口。</translation>
    </message>
    <message>
        <source>Open the &amp;sample board</source>
        <translation>打开示例板(&amp;S)</translation>
    </message>
    <message>
        <source>Opened lately:</source>
        <translation>最近打开：</translation>
    </message>
    <message>
        <source>&amp;Open a board...</source>
        <translation>打开板(&amp;O)...</translation>
    </message>
</context>
<context>
    <name>Workbench::CategoryNames</name>
    <message>
        <source>PTH Summary</source>
        <translation>PTH 汇总</translation>
    </message>
    <message>
        <source>NPTH Summary</source>
        <translation>NPTH 汇总</translation>
    </message>
    <message>
        <source>Via Summary</source>
        <translation>过孔汇总</translation>
    </message>
    <message>
        <source>Plated Slot Summary</source>
        <translation>镀铜槽汇总</translation>
    </message>
    <message>
        <source>Non Plated Slot Summary</source>
        <translation>非镀铜槽汇总</translation>
    </message>
    <message>
        <source>2nd Drilled Holes</source>
        <translation>二次钻孔</translation>
    </message>
    <message>
        <source>2nd Drilled PTH Holes</source>
        <translation>二次钻 PTH 孔</translation>
    </message>
    <message>
        <source>Tooling Holes</source>
        <translation>工具孔</translation>
    </message>
    <message>
        <source>Mounting Holes</source>
        <translation>安装孔</translation>
    </message>
    <message>
        <source>Duplicate Holes</source>
        <translation>重孔</translation>
    </message>
    <message>
        <source>Touching Holes</source>
        <translation>相交孔</translation>
    </message>
    <message>
        <source>Close Holes</source>
        <translation>近孔</translation>
    </message>
    <message>
        <source>Missing Holes</source>
        <translation>漏孔</translation>
    </message>
    <message>
        <source>Extra Holes</source>
        <translation>多余孔</translation>
    </message>
    <message>
        <source>Short_3</source>
        <translation>短路_3</translation>
    </message>
    <message>
        <source>Short_4</source>
        <translation>短路_4</translation>
    </message>
    <message>
        <source>Short_5</source>
        <translation>短路_5</translation>
    </message>
    <message>
        <source>Short_6</source>
        <translation>短路_6</translation>
    </message>
    <message>
        <source>Short_7</source>
        <translation>短路_7</translation>
    </message>
    <message>
        <source>Short_8</source>
        <translation>短路_8</translation>
    </message>
    <message>
        <source>Short_9</source>
        <translation>短路_9</translation>
    </message>
    <message>
        <source>Short_10_up</source>
        <translation>短路_10 及以上</translation>
    </message>
    <message>
        <source>NPTH to Rout</source>
        <translation>NPTH 到铣边</translation>
    </message>
    <message>
        <source>Non Standard Symbol</source>
        <translation>非标准符号</translation>
    </message>
    <message>
        <source>Non Standard Feature</source>
        <translation>非标准图形</translation>
    </message>
    <message>
        <source>Canned Text</source>
        <translation>固定文字</translation>
    </message>
    <message>
        <source>PTH slot to Rout</source>
        <translation>PTH 槽到铣边</translation>
    </message>
    <message>
        <source>NPTH slot to Rout</source>
        <translation>NPTH 槽到铣边</translation>
    </message>
    <message>
        <source>Same Net Close PTHs</source>
        <translation>同网络近 PTH</translation>
    </message>
    <message>
        <source>Different Net Close PTHs</source>
        <translation>异网络近 PTH</translation>
    </message>
    <message>
        <source>Close NPTHs</source>
        <translation>近 NPTH</translation>
    </message>
    <message>
        <source>Close PTH2NPTH (isolate)</source>
        <translation>PTH 与 NPTH 过近（孤立）</translation>
    </message>
    <message>
        <source>Close PTH2NPTH (conn)</source>
        <translation>PTH 与 NPTH 过近（相连）</translation>
    </message>
    <message>
        <source>Close PTH2NPTH</source>
        <translation>PTH 与 NPTH 过近</translation>
    </message>
    <message>
        <source>Same Net Close VIAs</source>
        <translation>同网络近过孔</translation>
    </message>
    <message>
        <source>Different Net Close VIAs</source>
        <translation>异网络近过孔</translation>
    </message>
    <message>
        <source>Same Net Close VIA2PTH</source>
        <translation>同网络过孔与 PTH 过近</translation>
    </message>
    <message>
        <source>Different Net Close VIA2PTH</source>
        <translation>异网络过孔与 PTH 过近</translation>
    </message>
    <message>
        <source>Via to Via</source>
        <translation>过孔到过孔</translation>
    </message>
    <message>
        <source>Via to PTH</source>
        <translation>过孔到 PTH</translation>
    </message>
    <message>
        <source>Via to NPTH</source>
        <translation>过孔到 NPTH</translation>
    </message>
    <message>
        <source>Via to Rout</source>
        <translation>过孔到铣边</translation>
    </message>
    <message>
        <source>PTH to PTH</source>
        <translation>PTH 到 PTH</translation>
    </message>
    <message>
        <source>PTH to NPTH</source>
        <translation>PTH 到 NPTH</translation>
    </message>
    <message>
        <source>PTH to Rout</source>
        <translation>PTH 到铣边</translation>
    </message>
    <message>
        <source>NPTH to NPTH</source>
        <translation>NPTH 到 NPTH</translation>
    </message>
    <message>
        <source>Laser to Laser</source>
        <translation>激光孔到激光孔</translation>
    </message>
    <message>
        <source>Laser to Via</source>
        <translation>激光孔到过孔</translation>
    </message>
    <message>
        <source>Laser to PTH</source>
        <translation>激光孔到 PTH</translation>
    </message>
    <message>
        <source>Laser to NPTH</source>
        <translation>激光孔到 NPTH</translation>
    </message>
    <message>
        <source>Laser to Rout</source>
        <translation>激光孔到铣边</translation>
    </message>
    <message>
        <source>PTH annular Ring</source>
        <translation>PTH 阻焊环宽</translation>
    </message>
    <message>
        <source>NPTH annular Ring</source>
        <translation>NPTH 阻焊环宽</translation>
    </message>
    <message>
        <source>Via annular Ring</source>
        <translation>过孔阻焊环宽</translation>
    </message>
    <message>
        <source>SMD annular Ring</source>
        <translation>SMD 阻焊环宽</translation>
    </message>
    <message>
        <source>Fiducial To SM</source>
        <translation>光学点到阻焊</translation>
    </message>
    <message>
        <source>Pad annular Ring</source>
        <translation>焊盘阻焊环宽</translation>
    </message>
    <message>
        <source>VIA Pad annular Ring</source>
        <translation>过孔焊盘阻焊环宽</translation>
    </message>
    <message>
        <source>PTH Pad annular Ring</source>
        <translation>PTH 焊盘阻焊环宽</translation>
    </message>
    <message>
        <source>NPTH Pad annular Ring</source>
        <translation>NPTH 焊盘阻焊环宽</translation>
    </message>
    <message>
        <source>Undrilled Pad annular Ring</source>
        <translation>无钻焊盘阻焊环宽</translation>
    </message>
    <message>
        <source>Fully Exposed Line annular Ring</source>
        <translation>全露线阻焊环宽</translation>
    </message>
    <message>
        <source>Partial Exposed Line annular Ring</source>
        <translation>半露线阻焊环宽</translation>
    </message>
    <message>
        <source>SMD Pad Gasket</source>
        <translation>SMD 焊盘压边</translation>
    </message>
    <message>
        <source>Undrilled Pad Gasket</source>
        <translation>无钻焊盘压边</translation>
    </message>
    <message>
        <source>PTH Pad Gasket</source>
        <translation>PTH 焊盘压边</translation>
    </message>
    <message>
        <source>NPTH Pad Gasket</source>
        <translation>NPTH 焊盘压边</translation>
    </message>
    <message>
        <source>NPTH Hole Gasket</source>
        <translation>NPTH 孔压边</translation>
    </message>
    <message>
        <source>VIA Pad Gasket</source>
        <translation>过孔焊盘压边</translation>
    </message>
    <message>
        <source>Undrilled Pad and Clearance Same Size</source>
        <translation>无钻焊盘与开窗等大</translation>
    </message>
    <message>
        <source>SMD Pad and Clearance Same Size</source>
        <translation>SMD 焊盘与开窗等大</translation>
    </message>
    <message>
        <source>PTH Pad and Clearance Same Size</source>
        <translation>PTH 焊盘与开窗等大</translation>
    </message>
    <message>
        <source>NPTH Pad and Clearance Same Size</source>
        <translation>NPTH 焊盘与开窗等大</translation>
    </message>
    <message>
        <source>NPTH Hole and Clearance Same Size</source>
        <translation>NPTH 孔与开窗等大</translation>
    </message>
    <message>
        <source>VIA Pad and Clearance Same Size</source>
        <translation>过孔焊盘与开窗等大</translation>
    </message>
    <message>
        <source>NPTH touches mask</source>
        <translation>NPTH 碰阻焊</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>阻焊覆盖</translation>
    </message>
    <message>
        <source>Same Net Coverage</source>
        <translation>同网络阻焊覆盖</translation>
    </message>
    <message>
        <source>Clearance Cover Several Nets</source>
        <translation>开窗跨多个网络</translation>
    </message>
    <message>
        <source>AR Larger than Coverage</source>
        <translation>环宽大于覆盖</translation>
    </message>
    <message>
        <source>Rout spacing</source>
        <translation>铣边间距</translation>
    </message>
    <message>
        <source>Missing Rout Clearance</source>
        <translation>缺铣边开窗</translation>
    </message>
    <message>
        <source>No bridge</source>
        <translation>无阻焊桥</translation>
    </message>
    <message>
        <source>No bridge (Same Net)</source>
        <translation>无阻焊桥（同网络）</translation>
    </message>
    <message>
        <source>No Bridge (SMD Pads)</source>
        <translation>无阻焊桥（SMD 焊盘）</translation>
    </message>
    <message>
        <source>SMDs Clearance Bridge</source>
        <translation>SMD 之间阻焊桥</translation>
    </message>
    <message>
        <source>SMD to Pad Clearance Bridge</source>
        <translation>SMD 到焊盘阻焊桥</translation>
    </message>
    <message>
        <source>Pad to Pad Clearance Bridge</source>
        <translation>焊盘到焊盘阻焊桥</translation>
    </message>
    <message>
        <source>Pad to Pad Clearance Bridge (Same Net)</source>
        <translation>焊盘到焊盘阻焊桥（同网络）</translation>
    </message>
    <message>
        <source>SM slivers</source>
        <translation>阻焊细丝</translation>
    </message>
    <message>
        <source>SM local spacing</source>
        <translation>阻焊局部间距</translation>
    </message>
    <message>
        <source>Pad to Pad Spacing</source>
        <translation>焊盘到焊盘间距</translation>
    </message>
    <message>
        <source>Pad to Pad Spacing(Same Net)</source>
        <translation>焊盘到焊盘间距（同网络）</translation>
    </message>
    <message>
        <source>Pad to Non-Pad Spacing</source>
        <translation>焊盘到非焊盘间距</translation>
    </message>
    <message>
        <source>Non-Pad to Non-Pad Spacing</source>
        <translation>非焊盘到非焊盘间距</translation>
    </message>
    <message>
        <source>Fully Exposed Tear Drop Pad</source>
        <translation>全露泪滴焊盘</translation>
    </message>
    <message>
        <source>Missing SMD clearance</source>
        <translation>缺 SMD 开窗</translation>
    </message>
    <message>
        <source>Missing Undrilled Pad clearance</source>
        <translation>缺无钻焊盘开窗</translation>
    </message>
    <message>
        <source>Missing PTH clearance</source>
        <translation>缺 PTH 开窗</translation>
    </message>
    <message>
        <source>Missing VIA clearance</source>
        <translation>缺过孔开窗</translation>
    </message>
    <message>
        <source>Covered VIA to SM</source>
        <translation>盖油过孔到阻焊</translation>
    </message>
    <message>
        <source>Missing NPTH clearance</source>
        <translation>缺 NPTH 开窗</translation>
    </message>
    <message>
        <source>SMD Partial Clearance</source>
        <translation>SMD 部分开窗</translation>
    </message>
    <message>
        <source>Undrilled Pad Partial Clearance</source>
        <translation>无钻焊盘部分开窗</translation>
    </message>
    <message>
        <source>Net Too Large</source>
        <translation>网络过大</translation>
    </message>
    <message>
        <source>Fully Exposed Line</source>
        <translation>全露线</translation>
    </message>
    <message>
        <source>Partial Clearance on VIA drilled pad</source>
        <translation>过孔钻孔焊盘部分开窗</translation>
    </message>
    <message>
        <source>Partial Clearance on NPTH drilled pad</source>
        <translation>NPTH 钻孔焊盘部分开窗</translation>
    </message>
    <message>
        <source>Partial Clearance on PTH drilled pad</source>
        <translation>PTH 钻孔焊盘部分开窗</translation>
    </message>
    <message>
        <source>Partial SMD Clearance annular Ring</source>
        <translation>SMD 部分开窗环宽</translation>
    </message>
    <message>
        <source>Partial SMD Clearance gasket</source>
        <translation>SMD 部分开窗压边</translation>
    </message>
    <message>
        <source>Partial Undrilled Pad Clearance annular Ring</source>
        <translation>无钻焊盘部分开窗环宽</translation>
    </message>
    <message>
        <source>Partial Undrilled Pad Clearance gasket</source>
        <translation>无钻焊盘部分开窗压边</translation>
    </message>
    <message>
        <source>Via to SMD Clearance</source>
        <translation>过孔到 SMD 开窗</translation>
    </message>
    <message>
        <source>PTH to SMD Clearance</source>
        <translation>PTH 到 SMD 开窗</translation>
    </message>
    <message>
        <source>NPTH to SMD Clearance</source>
        <translation>NPTH 到 SMD 开窗</translation>
    </message>
    <message>
        <source>Ignored Net</source>
        <translation>忽略的网络</translation>
    </message>
    <message>
        <source>Clearance to Clearance Connection</source>
        <translation>开窗与开窗相连</translation>
    </message>
    <message>
        <source>Feature too small to check</source>
        <translation>图形过小无法检查</translation>
    </message>
    <message>
        <source>** Not in Use **</source>
        <translation>** 未使用 **</translation>
    </message>
    <message>
        <source>BGA Annular Ring</source>
        <translation>BGA 阻焊环宽</translation>
    </message>
    <message>
        <source>Coverage to line</source>
        <translation>阻焊覆盖线</translation>
    </message>
    <message>
        <source>Coverage to Pad</source>
        <translation>阻焊覆盖焊盘</translation>
    </message>
    <message>
        <source>Coverage to Surface</source>
        <translation>阻焊覆盖铜面</translation>
    </message>
    <message>
        <source>BGA Pad Gasket</source>
        <translation>BGA 焊盘压边</translation>
    </message>
    <message>
        <source>BGA Pad and Clearance Same Size</source>
        <translation>BGA 焊盘与开窗等大</translation>
    </message>
    <message>
        <source>BGAs Clearance Bridge</source>
        <translation>BGA 之间阻焊桥</translation>
    </message>
    <message>
        <source>BGA to Pad Clearance Bridge</source>
        <translation>BGA 到焊盘阻焊桥</translation>
    </message>
    <message>
        <source>BGA Partial Clearance</source>
        <translation>BGA 部分开窗</translation>
    </message>
    <message>
        <source>Missing BGA clearance</source>
        <translation>缺 BGA 开窗</translation>
    </message>
    <message>
        <source>Partial BGA Clearance annular Ring</source>
        <translation>BGA 部分开窗环宽</translation>
    </message>
    <message>
        <source>Partial BGA Clearance gasket</source>
        <translation>BGA 部分开窗压边</translation>
    </message>
    <message>
        <source>Via to BGA Clearance</source>
        <translation>过孔到 BGA 开窗</translation>
    </message>
    <message>
        <source>PTH to BGA Clearance</source>
        <translation>PTH 到 BGA 开窗</translation>
    </message>
    <message>
        <source>NPTH to BGA Clearance</source>
        <translation>NPTH 到 BGA 开窗</translation>
    </message>
    <message>
        <source>No Bridge (BGA Pads)</source>
        <translation>无阻焊桥（BGA 焊盘）</translation>
    </message>
    <message>
        <source>Pad to pad</source>
        <translation>焊盘到焊盘</translation>
    </message>
    <message>
        <source>Pad to circuit</source>
        <translation>焊盘到线路</translation>
    </message>
    <message>
        <source>SMD to circuit</source>
        <translation>SMD 到线路</translation>
    </message>
    <message>
        <source>Circuit to circuit</source>
        <translation>线路到线路</translation>
    </message>
    <message>
        <source>Line to Line</source>
        <translation>线到线</translation>
    </message>
    <message>
        <source>Circuit to Line</source>
        <translation>线路到线</translation>
    </message>
    <message>
        <source>Text to text</source>
        <translation>文字到文字</translation>
    </message>
    <message>
        <source>Spacing length</source>
        <translation>间距长度</translation>
    </message>
    <message>
        <source>Same Net Spacing</source>
        <translation>同网络间距</translation>
    </message>
    <message>
        <source>CAD Self Spacing</source>
        <translation>CAD 自身间距</translation>
    </message>
    <message>
        <source>CAD Short</source>
        <translation>CAD 短路</translation>
    </message>
    <message>
        <source>ToePrint to ToePrint</source>
        <translation>管脚到管脚</translation>
    </message>
    <message>
        <source>SMD to SMD</source>
        <translation>SMD 到 SMD</translation>
    </message>
    <message>
        <source>SMD to Pad</source>
        <translation>SMD 到焊盘</translation>
    </message>
    <message>
        <source>Exposed to Exposed</source>
        <translation>露铜到露铜</translation>
    </message>
    <message>
        <source>Covered to Covered</source>
        <translation>盖油到盖油</translation>
    </message>
    <message>
        <source>Exposed to Covered</source>
        <translation>露铜到盖油</translation>
    </message>
    <message>
        <source>Exposed to Exposed(Same net)</source>
        <translation>露铜到露铜（同网络）</translation>
    </message>
    <message>
        <source>Covered to Covered(Same net)</source>
        <translation>盖油到盖油（同网络）</translation>
    </message>
    <message>
        <source>Exposed to Covered(Same net)</source>
        <translation>露铜到盖油（同网络）</translation>
    </message>
    <message>
        <source>Exposed to Fully Covered</source>
        <translation>露铜到全盖油</translation>
    </message>
    <message>
        <source>NPTH to pad</source>
        <translation>NPTH 到焊盘</translation>
    </message>
    <message>
        <source>NPTH to circuit</source>
        <translation>NPTH 到线路</translation>
    </message>
    <message>
        <source>PTH to Copper</source>
        <translation>PTH 到铜</translation>
    </message>
    <message>
        <source>PTH to Line</source>
        <translation>PTH 到线</translation>
    </message>
    <message>
        <source>PTH to Pad</source>
        <translation>PTH 到焊盘</translation>
    </message>
    <message>
        <source>VIA to Copper</source>
        <translation>过孔到铜</translation>
    </message>
    <message>
        <source>VIA to Line</source>
        <translation>过孔到线</translation>
    </message>
    <message>
        <source>VIA to Pad</source>
        <translation>过孔到焊盘</translation>
    </message>
    <message>
        <source>PTH Annular ring</source>
        <translation>PTH 环宽</translation>
    </message>
    <message>
        <source>PTH (Comp) Annular ring</source>
        <translation>PTH（元件孔）环宽</translation>
    </message>
    <message>
        <source>VIA Annular ring</source>
        <translation>过孔环宽</translation>
    </message>
    <message>
        <source>Laser Via Annular ring</source>
        <translation>激光孔环宽</translation>
    </message>
    <message>
        <source>Photo Via Annular ring</source>
        <translation>感光孔环宽</translation>
    </message>
    <message>
        <source>NPTH Annular ring</source>
        <translation>NPTH 环宽</translation>
    </message>
    <message>
        <source>PTH Registration</source>
        <translation>PTH 对位</translation>
    </message>
    <message>
        <source>NPTH Registration</source>
        <translation>NPTH 对位</translation>
    </message>
    <message>
        <source>Missing Pad for VIA</source>
        <translation>过孔缺焊盘</translation>
    </message>
    <message>
        <source>Missing Pad for PTH</source>
        <translation>PTH 缺焊盘</translation>
    </message>
    <message>
        <source>Missing Cu for VIA</source>
        <translation>过孔缺铜</translation>
    </message>
    <message>
        <source>NPTH touches Copper</source>
        <translation>NPTH 碰铜</translation>
    </message>
    <message>
        <source>Rout to Copper</source>
        <translation>铣边到铜</translation>
    </message>
    <message>
        <source>Missing Cu for Plated Rout</source>
        <translation>镀铜铣槽缺铜</translation>
    </message>
    <message>
        <source>Pads</source>
        <translation>焊盘</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>线</translation>
    </message>
    <message>
        <source>Non standard rotated lines</source>
        <translation>非标准角度线</translation>
    </message>
    <message>
        <source>Shaved Lines</source>
        <translation>削过的线</translation>
    </message>
    <message>
        <source>Inconsistent Line Width</source>
        <translation>线宽不一致</translation>
    </message>
    <message>
        <source>Arcs</source>
        <translation>弧</translation>
    </message>
    <message>
        <source>Shaved Arcs</source>
        <translation>削过的弧</translation>
    </message>
    <message>
        <source>Inconsistent Arc Width</source>
        <translation>弧宽不一致</translation>
    </message>
    <message>
        <source>Line Neckdown</source>
        <translation>线颈缩</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Text Fields</source>
        <translation>文字区</translation>
    </message>
    <message>
        <source>Slivers</source>
        <translation>铜细丝</translation>
    </message>
    <message>
        <source>Local Spacing</source>
        <translation>局部间距</translation>
    </message>
    <message>
        <source>Stubs</source>
        <translation>线头</translation>
    </message>
    <message>
        <source>SMD Pitch</source>
        <translation>SMD 节距</translation>
    </message>
    <message>
        <source>BGA Pitch</source>
        <translation>BGA 节距</translation>
    </message>
    <message>
        <source>Zero Width Or Too Thin Features</source>
        <translation>零宽或过细图形</translation>
    </message>
    <message>
        <source>SMD Pads</source>
        <translation>SMD 焊盘</translation>
    </message>
    <message>
        <source>Shaved SMD</source>
        <translation>削过的 SMD</translation>
    </message>
    <message>
        <source>Shaved BGA</source>
        <translation>削过的 BGA</translation>
    </message>
    <message>
        <source>SMD Packages</source>
        <translation>SMD 封装</translation>
    </message>
    <message>
        <source>Conductor width</source>
        <translation>导体宽度</translation>
    </message>
    <message>
        <source>Plated Rout Annular Ring</source>
        <translation>镀铜铣槽环宽</translation>
    </message>
    <message>
        <source>Incoming Trace to Hole</source>
        <translation>入孔走线</translation>
    </message>
    <message>
        <source>Pad to Pad Connection</source>
        <translation>焊盘与焊盘相连</translation>
    </message>
    <message>
        <source>Pad to Cu Connection</source>
        <translation>焊盘与铜相连</translation>
    </message>
    <message>
        <source>Pad to Line Connection</source>
        <translation>焊盘与线相连</translation>
    </message>
    <message>
        <source>BGA to circuit(spacing)</source>
        <translation>BGA 到线路（间距）</translation>
    </message>
    <message>
        <source>Feature to feature(spacing)</source>
        <translation>图形到图形（间距）</translation>
    </message>
    <message>
        <source>BGA to BGA(spacing)</source>
        <translation>BGA 到 BGA（间距）</translation>
    </message>
    <message>
        <source>BGA to Pad(spacing)</source>
        <translation>BGA 到焊盘（间距）</translation>
    </message>
    <message>
        <source>Pad to line(spacing)</source>
        <translation>焊盘到线（间距）</translation>
    </message>
    <message>
        <source>Pad to surface(spacing)</source>
        <translation>焊盘到铜面（间距）</translation>
    </message>
    <message>
        <source>VIA to Copper(Same net)</source>
        <translation>过孔到铜（同网络）</translation>
    </message>
    <message>
        <source>Self-intersection in surface</source>
        <translation>铜面自相交</translation>
    </message>
    <message>
        <source>Self-intersection in symbol</source>
        <translation>符号自相交</translation>
    </message>
    <message>
        <source>Problematic surface</source>
        <translation>有问题的铜面</translation>
    </message>
    <message>
        <source>Wrong nesting for island</source>
        <translation>岛嵌套错误</translation>
    </message>
    <message>
        <source>Wrong nesting for hole</source>
        <translation>孔嵌套错误</translation>
    </message>
    <message>
        <source>Small Polygon</source>
        <translation>小多边形</translation>
    </message>
    <message>
        <source>Small Polygon in symbol</source>
        <translation>符号内小多边形</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>折叠</translation>
    </message>
    <message>
        <source>Fold in symbol</source>
        <translation>符号内折叠</translation>
    </message>
    <message>
        <source>Small edge in surface</source>
        <translation>铜面小边</translation>
    </message>
    <message>
        <source>Small edge in symbol</source>
        <translation>符号内小边</translation>
    </message>
    <message>
        <source>SM Clearance</source>
        <translation>阻焊间隙</translation>
    </message>
    <message>
        <source>SMD Clearance</source>
        <translation>SMD 间隙</translation>
    </message>
    <message>
        <source>PTH pads Clearance</source>
        <translation>PTH 焊盘间隙</translation>
    </message>
    <message>
        <source>Via pads Clearance</source>
        <translation>过孔焊盘间隙</translation>
    </message>
    <message>
        <source>NPTH pads Clearance</source>
        <translation>NPTH 焊盘间隙</translation>
    </message>
    <message>
        <source>Undrilled pads Clearance</source>
        <translation>无钻焊盘间隙</translation>
    </message>
    <message>
        <source>NPTH clearance</source>
        <translation>NPTH 间隙</translation>
    </message>
    <message>
        <source>PTH clearance</source>
        <translation>PTH 间隙</translation>
    </message>
    <message>
        <source>Via clearance</source>
        <translation>过孔间隙</translation>
    </message>
    <message>
        <source>Rout clearance</source>
        <translation>铣边间隙</translation>
    </message>
    <message>
        <source>Line width</source>
        <translation>线宽</translation>
    </message>
    <message>
        <source>Arc width</source>
        <translation>弧宽</translation>
    </message>
    <message>
        <source>Pad width</source>
        <translation>焊盘宽度</translation>
    </message>
    <message>
        <source>Surface width</source>
        <translation>铜面宽度</translation>
    </message>
    <message>
        <source>Zero Line width</source>
        <translation>零线宽</translation>
    </message>
    <message>
        <source>Shaved Line</source>
        <translation>削过的线</translation>
    </message>
    <message>
        <source>Shaved Arc</source>
        <translation>削过的弧</translation>
    </message>
    <message>
        <source>Shaved Pad</source>
        <translation>削过的焊盘</translation>
    </message>
    <message>
        <source>Shaved Surface</source>
        <translation>削过的铜面</translation>
    </message>
    <message>
        <source>Inconsistent Surface Width</source>
        <translation>铜面宽度不一致</translation>
    </message>
    <message>
        <source>Text width</source>
        <translation>文字线宽</translation>
    </message>
    <message>
        <source>Text height</source>
        <translation>文字高度</translation>
    </message>
    <message>
        <source>SS to SS spacing</source>
        <translation>字符到字符间距</translation>
    </message>
    <message>
        <source>SS Over Text</source>
        <translation>字符压文字</translation>
    </message>
    <message>
        <source>SS Over Channel</source>
        <translation>字符压通道</translation>
    </message>
    <message>
        <source>Org step check</source>
        <translation>原稿步骤检查</translation>
    </message>
    <message>
        <source>Org solder paste top layer check</source>
        <translation>原稿顶层钢网检查</translation>
    </message>
    <message>
        <source>Org silk screen top layer check</source>
        <translation>原稿顶层字符检查</translation>
    </message>
    <message>
        <source>Org solder mask top layer check</source>
        <translation>原稿顶层阻焊检查</translation>
    </message>
    <message>
        <source>Org signal top layer check</source>
        <translation>原稿顶层线路检查</translation>
    </message>
    <message>
        <source>Org signal layers check</source>
        <translation>原稿线路层检查</translation>
    </message>
    <message>
        <source>Org signal bot layer check</source>
        <translation>原稿底层线路检查</translation>
    </message>
    <message>
        <source>Org solder mask bottom layer check</source>
        <translation>原稿底层阻焊检查</translation>
    </message>
    <message>
        <source>Org silk screen bottom layer check</source>
        <translation>原稿底层字符检查</translation>
    </message>
    <message>
        <source>Org solder paste bottom layer check</source>
        <translation>原稿底层钢网检查</translation>
    </message>
    <message>
        <source>Org drill layers check</source>
        <translation>原稿钻孔层检查</translation>
    </message>
    <message>
        <source>Org rout layer check</source>
        <translation>原稿铣边层检查</translation>
    </message>
    <message>
        <source>Org zero point check</source>
        <translation>原稿零点检查</translation>
    </message>
    <message>
        <source>Net step check</source>
        <translation>网络步骤检查</translation>
    </message>
    <message>
        <source>Net outerline layer check</source>
        <translation>网络外形层检查</translation>
    </message>
    <message>
        <source>Net profile check</source>
        <translation>网络外形框检查</translation>
    </message>
    <message>
        <source>Net clip outerline check</source>
        <translation>网络外形裁切检查</translation>
    </message>
    <message>
        <source>Net clip outside check</source>
        <translation>网络板外裁切检查</translation>
    </message>
    <message>
        <source>Prepare smd pad sold check</source>
        <translation>预处理 SMD 焊盘阻焊检查</translation>
    </message>
    <message>
        <source>Prepare step check</source>
        <translation>预处理步骤检查</translation>
    </message>
    <message>
        <source>Prepare line2surface check</source>
        <translation>预处理线转铜面检查</translation>
    </message>
    <message>
        <source>Prepare signal layer negative check</source>
        <translation>预处理线路层负片检查</translation>
    </message>
    <message>
        <source>Prepare signal layer attribute check</source>
        <translation>预处理线路层属性检查</translation>
    </message>
    <message>
        <source>Prepare drill layer negative check</source>
        <translation>预处理钻孔层负片检查</translation>
    </message>
    <message>
        <source>Prepare drill layer attribute check</source>
        <translation>预处理钻孔层属性检查</translation>
    </message>
    <message>
        <source>Prepare solder mask layer negative check</source>
        <translation>预处理阻焊层负片检查</translation>
    </message>
    <message>
        <source>Prepare solder mask feature check</source>
        <translation>预处理阻焊图形检查</translation>
    </message>
    <message>
        <source>Prepare solder mask sold check</source>
        <translation>预处理阻焊开窗检查</translation>
    </message>
    <message>
        <source>Prepare outer layer drillpad check</source>
        <translation>预处理外层孔环检查</translation>
    </message>
    <message>
        <source>Prepare board layer symbol size check</source>
        <translation>预处理板层符号尺寸检查</translation>
    </message>
    <message>
        <source>Prepare step drill pad poisition check</source>
        <translation>预处理步骤孔环位置检查</translation>
    </message>
    <message>
        <source>No Violations</source>
        <translation>无违规</translation>
    </message>
    <message>
        <source>Violations (Optimal)</source>
        <translation>违规（优化值）</translation>
    </message>
    <message>
        <source>Opt.Cover Only</source>
        <translation>优化：仅覆盖</translation>
    </message>
    <message>
        <source>Opt.Clear Only</source>
        <translation>优化：仅开窗</translation>
    </message>
    <message>
        <source>Violations (Minimal)</source>
        <translation>违规（最小值）</translation>
    </message>
    <message>
        <source>Gasket Removed</source>
        <translation>已去除压边</translation>
    </message>
    <message>
        <source>Bridges (All)</source>
        <translation>阻焊桥（全部）</translation>
    </message>
    <message>
        <source>Bridges (Violations)</source>
        <translation>阻焊桥（违规）</translation>
    </message>
    <message>
        <source>Bridges (Positive)</source>
        <translation>阻焊桥（正）</translation>
    </message>
    <message>
        <source>Bridges (Net Intersected)</source>
        <translation>阻焊桥（跨网络）</translation>
    </message>
    <message>
        <source>Cannot Bridge</source>
        <translation>无法做桥</translation>
    </message>
    <message>
        <source>Too dense</source>
        <translation>过密</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Resize Problem</source>
        <translation>缩放问题</translation>
    </message>
    <message>
        <source>Oversized Clearances</source>
        <translation>过大开窗</translation>
    </message>
    <message>
        <source>Partial   Clearances</source>
        <translation>部分开窗</translation>
    </message>
    <message>
        <source>Small     Clearances</source>
        <translation>过小开窗</translation>
    </message>
    <message>
        <source>Shave Avoided</source>
        <translation>避免削切</translation>
    </message>
    <message>
        <source>Shaves</source>
        <translation>削切</translation>
    </message>
    <message>
        <source>ARG repaired</source>
        <translation>环宽已修复</translation>
    </message>
    <message>
        <source>ARG violation(min)</source>
        <translation>环宽违规（最小值）</translation>
    </message>
    <message>
        <source>ARG violation(opt)</source>
        <translation>环宽违规（优化值）</translation>
    </message>
    <message>
        <source>Pad enlarge &gt; limit</source>
        <translation>焊盘加大超限</translation>
    </message>
    <message>
        <source>annular_ring</source>
        <translation>环宽</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>间距</translation>
    </message>
    <message>
        <source>Pth2c</source>
        <translation>PTH 到铜距离</translation>
    </message>
    <message>
        <source>NPth2c</source>
        <translation>NPTH 到铜距离</translation>
    </message>
    <message>
        <source>Spacing repaired</source>
        <translation>间距已修复</translation>
    </message>
    <message>
        <source>H2Cu repaired</source>
        <translation>孔到铜已修复</translation>
    </message>
    <message>
        <source>Spacing violation(min)</source>
        <translation>间距违规（最小值）</translation>
    </message>
    <message>
        <source>Spacing violation(opt)</source>
        <translation>间距违规（优化值）</translation>
    </message>
    <message>
        <source>H2Cu violation</source>
        <translation>孔到铜违规</translation>
    </message>
    <message>
        <source>Same net space</source>
        <translation>同网络间隙</translation>
    </message>
    <message>
        <source>Same Net Spacing Violation</source>
        <translation>同网络间距违规</translation>
    </message>
    <message>
        <source>Same Net Spacing Violation repaired</source>
        <translation>同网络间距违规已修复</translation>
    </message>
    <message>
        <source>Polygon shave</source>
        <translation>多边形削切</translation>
    </message>
    <message>
        <source>Filled polygon shave</source>
        <translation>可填充多边形削切</translation>
    </message>
    <message>
        <source>Unfillable polygon shave</source>
        <translation>不可填充多边形削切</translation>
    </message>
    <message>
        <source>Full Teardrops</source>
        <translation>完整泪滴</translation>
    </message>
    <message>
        <source>One Sided Teardrops</source>
        <translation>单边泪滴</translation>
    </message>
    <message>
        <source>Shortened Teardrops</source>
        <translation>缩短泪滴</translation>
    </message>
    <message>
        <source>Missing Teardrops</source>
        <translation>缺泪滴</translation>
    </message>
    <message>
        <source>Problematic Teardrops</source>
        <translation>有问题的泪滴</translation>
    </message>
    <message>
        <source>Suspected Thermal</source>
        <translation>疑似花焊盘</translation>
    </message>
    <message>
        <source>Spacing Violations</source>
        <translation>间距违规</translation>
    </message>
    <message>
        <source>Line Too Narrow</source>
        <translation>线过细</translation>
    </message>
    <message>
        <source>Updated Teardrops Size</source>
        <translation>已更新泪滴尺寸</translation>
    </message>
    <message>
        <source>Suspected Teardrop</source>
        <translation>疑似泪滴</translation>
    </message>
    <message>
        <source>Isolated</source>
        <translation>孤立</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>重复</translation>
    </message>
    <message>
        <source>Drilled Over</source>
        <translation>被钻掉</translation>
    </message>
    <message>
        <source>Covered</source>
        <translation>被覆盖</translation>
    </message>
    <message>
        <source>Snapped pads</source>
        <translation>已对齐焊盘</translation>
    </message>
    <message>
        <source>Un Snapped pads</source>
        <translation>未对齐焊盘</translation>
    </message>
    <message>
        <source>Spacing problems</source>
        <translation>间距问题</translation>
    </message>
    <message>
        <source>NPTH to Copper</source>
        <translation>NPTH 到铜</translation>
    </message>
    <message>
        <source>NPTH to Plane</source>
        <translation>NPTH 到铜皮</translation>
    </message>
    <message>
        <source>PTH Annular Ring</source>
        <translation>PTH 环宽</translation>
    </message>
    <message>
        <source>PTH to Plane</source>
        <translation>PTH 到铜皮</translation>
    </message>
    <message>
        <source>Via Annular Ring</source>
        <translation>过孔环宽</translation>
    </message>
    <message>
        <source>Via to Copper</source>
        <translation>过孔到铜</translation>
    </message>
    <message>
        <source>Via to Plane</source>
        <translation>过孔到铜皮</translation>
    </message>
    <message>
        <source>PTH Partial touch Copper</source>
        <translation>PTH 部分接铜</translation>
    </message>
    <message>
        <source>Via Partial touch Copper</source>
        <translation>过孔部分接铜</translation>
    </message>
    <message>
        <source>PTH contains Clearance</source>
        <translation>PTH 含隔离盘</translation>
    </message>
    <message>
        <source>Via contains Clearance</source>
        <translation>过孔含隔离盘</translation>
    </message>
    <message>
        <source>NPTH contains Copper</source>
        <translation>NPTH 含铜</translation>
    </message>
    <message>
        <source>Via Registration</source>
        <translation>过孔对位</translation>
    </message>
    <message>
        <source>Missing Cu for Via</source>
        <translation>过孔缺铜</translation>
    </message>
    <message>
        <source>Spot NFP</source>
        <translation>点状非功能焊盘</translation>
    </message>
    <message>
        <source>Spoke Width</source>
        <translation>花焊盘连接宽度</translation>
    </message>
    <message>
        <source>Thermal connect Reduction</source>
        <translation>花焊盘连接减少</translation>
    </message>
    <message>
        <source>Complex Thermal Geometry</source>
        <translation>复杂花焊盘形状</translation>
    </message>
    <message>
        <source>Thermal Air Gap</source>
        <translation>花焊盘隔离间隙</translation>
    </message>
    <message>
        <source>Small Spoke Width</source>
        <translation>花焊盘连接过窄</translation>
    </message>
    <message>
        <source>NFP Spacing</source>
        <translation>非功能焊盘间距</translation>
    </message>
    <message>
        <source>NFP Spacing(pos)</source>
        <translation>非功能焊盘间距（正）</translation>
    </message>
    <message>
        <source>Plane Spacing</source>
        <translation>铜皮间距</translation>
    </message>
    <message>
        <source>Segmentation Lines</source>
        <translation>分割线</translation>
    </message>
    <message>
        <source>NPTH Annular Ring</source>
        <translation>NPTH 环宽</translation>
    </message>
    <message>
        <source>Isolated Drill</source>
        <translation>孤立钻孔</translation>
    </message>
    <message>
        <source>Mechanical Via Annular Ring</source>
        <translation>机械孔环宽</translation>
    </message>
    <message>
        <source>Laser Via Annular Ring</source>
        <translation>激光孔环宽</translation>
    </message>
    <message>
        <source>Photo Via Annular Ring</source>
        <translation>感光孔环宽</translation>
    </message>
    <message>
        <source>Via AirGap Not Modified</source>
        <translation>过孔隔离间隙未修改</translation>
    </message>
    <message>
        <source>Via AirGap Modified</source>
        <translation>过孔隔离间隙已修改</translation>
    </message>
    <message>
        <source>Via Spacing Not Modified</source>
        <translation>过孔间距未修改</translation>
    </message>
    <message>
        <source>Via Spacing Modified</source>
        <translation>过孔间距已修改</translation>
    </message>
    <message>
        <source>Via AR Not Modified</source>
        <translation>过孔环宽未修改</translation>
    </message>
    <message>
        <source>Via AR Partially Modified</source>
        <translation>过孔环宽部分修改</translation>
    </message>
    <message>
        <source>Via AR Modified</source>
        <translation>过孔环宽已修改</translation>
    </message>
    <message>
        <source>Via Clr Not Modified</source>
        <translation>过孔隔离未修改</translation>
    </message>
    <message>
        <source>Via Clr Partially Modified</source>
        <translation>过孔隔离部分修改</translation>
    </message>
    <message>
        <source>Via Clr Modified</source>
        <translation>过孔隔离已修改</translation>
    </message>
    <message>
        <source>PTH AirGap Not Modified</source>
        <translation>PTH 隔离间隙未修改</translation>
    </message>
    <message>
        <source>PTH AirGap Modified</source>
        <translation>PTH 隔离间隙已修改</translation>
    </message>
    <message>
        <source>PTH Spacing Not Modified</source>
        <translation>PTH 间距未修改</translation>
    </message>
    <message>
        <source>PTH Spacing Modified</source>
        <translation>PTH 间距已修改</translation>
    </message>
    <message>
        <source>PTH AR Not Modified</source>
        <translation>PTH 环宽未修改</translation>
    </message>
    <message>
        <source>PTH AR Partially Modified</source>
        <translation>PTH 环宽部分修改</translation>
    </message>
    <message>
        <source>PTH AR Modified</source>
        <translation>PTH 环宽已修改</translation>
    </message>
    <message>
        <source>PTH Clr Not Modified</source>
        <translation>PTH 隔离未修改</translation>
    </message>
    <message>
        <source>PTH Clr Partially Modified</source>
        <translation>PTH 隔离部分修改</translation>
    </message>
    <message>
        <source>PTH Clr Modified</source>
        <translation>PTH 隔离已修改</translation>
    </message>
    <message>
        <source>NPTH Clr Not Modified</source>
        <translation>NPTH 隔离未修改</translation>
    </message>
    <message>
        <source>NPTH Clr Partially Modified</source>
        <translation>NPTH 隔离部分修改</translation>
    </message>
    <message>
        <source>NPTH Clr Modified</source>
        <translation>NPTH 隔离已修改</translation>
    </message>
    <message>
        <source>NPTH Pad Is Not Clearance</source>
        <translation>NPTH 焊盘不是隔离盘</translation>
    </message>
    <message>
        <source>Unsupported Drilled Shape</source>
        <translation>不支持的钻孔形状</translation>
    </message>
    <message>
        <source>Pad Misregistration</source>
        <translation>焊盘偏位</translation>
    </message>
    <message>
        <source>Build Donut</source>
        <translation>生成环形盘</translation>
    </message>
    <message>
        <source>Nets</source>
        <translation>网络</translation>
    </message>
</context>
<context>
    <name>Workbench::EnglishTexts</name>
    <message>
        <source>The nets are those of eda/data (%1); what it does not list belongs to what it touches.</source>
        <translation>网络取自 eda/data（%1 个）；未列出的图形归入与其相接的网络。</translation>
    </message>
    <message>
        <source>The nets come from copper and plated holes that touch: %1.</source>
        <translation>网络由相接的铜和镀铜孔得出：%1。</translation>
    </message>
    <message>
        <source>the step has no eda/data</source>
        <translation>该步骤没有 eda/data</translation>
    </message>
    <message>
        <source>eda/data does not fit the job: %1</source>
        <translation>eda/data 与料号不符：%1</translation>
    </message>
    <message>
        <source>it names a layer %1 that the job does not have</source>
        <translation>其中的层 %1 在料号里不存在</translation>
    </message>
    <message>
        <source>its net %1 has feature %2 of layer %3, which has %4</source>
        <translation>其网络 %1 含层 %3 的图形 %2，而该层共有 %4 个图形</translation>
    </message>
    <message>
        <source>eda/data lists no nets</source>
        <translation>eda/data 未列出任何网络</translation>
    </message>
    <message>
        <source>eda/data cannot be used: %1</source>
        <translation>eda/data 无法使用：%1</translation>
    </message>
    <message>
        <source>The job holds no features of this layer, only their tables.</source>
        <translation>料号里没有该层的图形，只有图形表。</translation>
    </message>
    <message>
        <source>The job holds no features file of this layer.</source>
        <translation>料号里没有该层的图形文件。</translation>
    </message>
    <message>
        <source>Erasing features (%1): what they take from others is not seen.</source>
        <translation>负性图形（%1 个）：未计入它们从其他图形上去除的部分。</translation>
    </message>
    <message>
        <source>Texts, marked as .nomenclature or .string (%1) are not measured.</source>
        <translation>标记为 .nomenclature 或 .string 的文字（%1 个）未测量。</translation>
    </message>
    <message>
        <source>Surfaces (%1): their narrow places are not measured, and none counts as a pad.</source>
        <translation>铜面（%1 个）：未测量其狭窄处，也不算作焊盘。</translation>
    </message>
    <message>
        <source>Surfaces (%1) are not measured as holes or slots.</source>
        <translation>铜面（%1 个）未作为孔或槽测量。</translation>
    </message>
    <message>
        <source>Surfaces marked as SMD pads (%1): their spacing is not measured.</source>
        <translation>标记为 SMD 焊盘的铜面（%1 个）：未测量其间距。</translation>
    </message>
    <message>
        <source>Tracks and pads that cross or leave the outline (%1): they are measured all the same.</source>
        <translation>越过或超出外形的线和焊盘（%1 个）：仍然测量。</translation>
    </message>
    <message>
        <source>Features outside the outline (%1) are not measured.</source>
        <translation>外形以外的图形（%1 个）未测量。</translation>
    </message>
    <message>
        <source>Features drawn with &quot;%1&quot; (%2): %3.</source>
        <translation>用“%1”绘制的图形（%2 个）：%3。</translation>
    </message>
    <message>
        <source>Features drawn with more such symbols (%1) are not measured.</source>
        <translation>用其他此类符号绘制的图形（%1 个）未测量。</translation>
    </message>
    <message>
        <source>the width of a line drawn with it cannot be measured</source>
        <translation>用它绘制的线无法测量线宽</translation>
    </message>
    <message>
        <source>this symbol cannot be measured</source>
        <translation>该符号无法测量</translation>
    </message>
    <message>
        <source>its drawing is too large</source>
        <translation>其图形过大</translation>
    </message>
    <message>
        <source>it contains symbols within symbols without end</source>
        <translation>其符号无限嵌套</translation>
    </message>
    <message>
        <source>the job has no drawing of it</source>
        <translation>料号里没有它的图形</translation>
    </message>
    <message>
        <source>the drawings of the job&apos;s symbols are too large</source>
        <translation>料号自定义符号的图形过大</translation>
    </message>
    <message>
        <source>of &quot;%1&quot; in it, %2</source>
        <translation>其中的“%1”：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in it cannot be measured so</source>
        <translation>其中的“%1”无法这样测量</translation>
    </message>
    <message>
        <source>its drawing is empty</source>
        <translation>其图形为空</translation>
    </message>
    <message>
        <source>its drawing has no measurable size</source>
        <translation>其图形没有可测量的尺寸</translation>
    </message>
    <message>
        <source>The SMD pads drawn with large symbols of the job&apos;s own are too many: their spacing is that of the boxes around them.</source>
        <translation>用大型自定义符号绘制的 SMD 焊盘过多：其间距按外接矩形计算。</translation>
    </message>
    <message>
        <source>Plated holes without a pad on this outer layer (%1): they have no ring.</source>
        <translation>该外层上没有焊盘的镀铜孔（%1 个）：没有环宽。</translation>
    </message>
    <message>
        <source>Plated holes whose pad does not cover their centre with solid copper (%1): they have no ring.</source>
        <translation>焊盘未以实铜覆盖孔中心的镀铜孔（%1 个）：没有环宽。</translation>
    </message>
    <message>
        <source>The layer has so many arcs that spacings are measured up to %1 micrometres too small.</source>
        <translation>该层圆弧过多，测得的间距最多偏小 %1 微米。</translation>
    </message>
    <message>
        <source>The rings of slots that are arcs (%1).</source>
        <translation>弧形槽（%1 个）的环宽。</translation>
    </message>
    <message>
        <source>The layer is negative: it draws what is taken away.</source>
        <translation>该层为负片：所画的是被去除的部分。</translation>
    </message>
    <message>
        <source>The step repeats %1 %2 times; measure that step.</source>
        <translation>该步骤拼入 %1 共 %2 次；请测量那个步骤。</translation>
    </message>
    <message>
        <source>The job has neither a rout layer nor a profile.</source>
        <translation>料号里既没有铣边层，也没有外形框。</translation>
    </message>
    <message>
        <source>The engine has no check for: %1.</source>
        <translation>引擎没有这些检查：%1。</translation>
    </message>
    <message>
        <source>Illegal float value
floating value for field is out of range: (%1, %2)</source>
        <translation>数值不合法
该栏的数值超出范围：(%1, %2)</translation>
    </message>
    <message>
        <source>floating value for field is out of range: %1
legal values: from %2 to %3</source>
        <translation>该栏的数值超出范围：%1
合法值：%2 到 %3</translation>
    </message>
</context>
<context>
    <name>Workbench::SeverityBar</name>
    <message>
        <source>Shows or hides the measurements of this colour</source>
        <translation>显示或隐藏此颜色的测量结果</translation>
    </message>
</context>
<context>
    <name>Workbench::WaiveDialog</name>
    <message>
        <source>&amp;Until</source>
        <translation>有效期至(&amp;U)</translation>
    </message>
    <message>
        <source>Waive a violation</source>
        <translation>豁免违规</translation>
    </message>
    <message>
        <source>&amp;Waive</source>
        <translation>豁免(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Reason:</source>
        <translation>理由(&amp;R)：</translation>
    </message>
    <message>
        <source>&amp;Accepted by:</source>
        <translation>接受人(&amp;A)：</translation>
    </message>
</context>
<context>
    <name>Workbench::WaiversBox</name>
    <message>
        <source>Waived: %1 red, %2 yellow, %3 green</source>
        <translation>已豁免：红 %1，黄 %2，绿 %3</translation>
    </message>
    <message>
        <source>Violation</source>
        <translation>违规</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>By</source>
        <translation>接受人</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>有效期至</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>理由</translation>
    </message>
    <message>
        <source>waived</source>
        <translation>已豁免</translation>
    </message>
    <message>
        <source>expired</source>
        <translation>已过期</translation>
    </message>
    <message>
        <source>accepts nothing</source>
        <translation>未匹配</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>查找范围：</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>后退</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>前进</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>转到上级文件夹</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>新建文件夹</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>以列表显示</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>显示详细信息</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>文件名(&amp;N)：</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>文件类型：</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>重命名(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>新建文件夹(&amp;N)</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>显示隐藏文件(&amp;H)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 已存在。
要替换它吗？</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
找不到文件。
请检查文件名是否正确。</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>修改日期</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>计算机</translation>
    </message>
</context>
<context>
    <name>QColorDialog</name>
    <message>
        <source>&amp;Basic colors</source>
        <translation>基本颜色(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Custom colors</source>
        <translation>自定义颜色(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Add to Custom Colors</source>
        <translation>添加到自定义颜色(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Pick Screen Color</source>
        <translation>从屏幕取色(&amp;P)</translation>
    </message>
    <message>
        <source>Hu&amp;e:</source>
        <translation>色调(&amp;E)：</translation>
    </message>
    <message>
        <source>&amp;Sat:</source>
        <translation>饱和度(&amp;S)：</translation>
    </message>
    <message>
        <source>&amp;Val:</source>
        <translation>亮度(&amp;V)：</translation>
    </message>
    <message>
        <source>&amp;Red:</source>
        <translation>红(&amp;R)：</translation>
    </message>
    <message>
        <source>&amp;Green:</source>
        <translation>绿(&amp;G)：</translation>
    </message>
    <message>
        <source>Bl&amp;ue:</source>
        <translation>蓝(&amp;U)：</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪切(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
</context>
</TS>
