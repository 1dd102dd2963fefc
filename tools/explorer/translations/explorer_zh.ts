<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>explorer::ArgumentForm</name>
    <message>
        <source>Copy as JSON</source>
        <translation>复制为 JSON</translation>
    </message>
    <message>
        <source>Paste JSON</source>
        <translation>粘贴 JSON</translation>
    </message>
    <message>
        <source>Choose a call to see its arguments here.</source>
        <translation>选择一个调用后，此处显示其参数。</translation>
    </message>
    <message>
        <source>This call takes no arguments.</source>
        <translation>此调用没有参数。</translation>
    </message>
    <message>
        <source>not valid JSON: %1 at byte %2</source>
        <translation>不是有效的 JSON：第 %2 个字节处有错误（%1）</translation>
    </message>
    <message>
        <source>Cannot paste the clipboard: %1</source>
        <translation>无法粘贴剪贴板内容：%1</translation>
    </message>
    <message>
        <source>Edit as JSON</source>
        <translation>以 JSON 编辑</translation>
    </message>
    <message>
        <source>Arguments as JSON</source>
        <translation>JSON 形式的参数</translation>
    </message>
    <message>
        <source>Invalid arguments: %1</source>
        <translation>参数无效：%1</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Runs %1 and fills in its result</source>
        <translation>运行 %1 并填入其返回的结果</translation>
    </message>
    <message>
        <source>Fill fro&amp;m the server</source>
        <translation>从服务器填充(&amp;M)</translation>
    </message>
</context>
<context>
    <name>explorer::CallHeader</name>
    <message>
        <source>Copy the &amp;path</source>
        <translation>复制路径(&amp;P)</translation>
    </message>
    <message>
        <source>No call selected</source>
        <translation>未选择调用</translation>
    </message>
    <message>
        <source>Choose a call on the left to fill it in and run it.</source>
        <translation>在左侧选择一个调用，填写参数并运行。</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>收藏</translation>
    </message>
</context>
<context>
    <name>explorer::CallPanel</name>
    <message>
        <source>Basic resources</source>
        <translation>基础资源</translation>
    </message>
    <message>
        <source>PTZ</source>
        <translation>云台</translation>
    </message>
    <message>
        <source>Analysis</source>
        <translation>分析</translation>
    </message>
    <message>
        <source>Parking</source>
        <translation>停车场</translation>
    </message>
    <message>
        <source>Access control</source>
        <translation>门禁</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>运维</translation>
    </message>
    <message>
        <source>Filter by name, path or key</source>
        <translation>按名称、路径或键筛选</translation>
    </message>
    <message>
        <source>Calls</source>
        <translation>调用</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>收藏</translation>
    </message>
    <message>
        <source>Recently used</source>
        <translation>最近使用</translation>
    </message>
    <message>
        <source>No matching calls</source>
        <translation>没有匹配的调用</translation>
    </message>
    <message numerus="yes">
        <source>%n call(s)</source>
        <translation>
            <numerusform>%n 个调用</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>explorer::CertificateLook</name>
    <message>
        <source>The server does not respond</source>
        <translation>服务器没有响应</translation>
    </message>
</context>
<context>
    <name>explorer::CheckedEditor</name>
    <message>
        <source>e.g. %1</source>
        <translation>例如 %1</translation>
    </message>
</context>
<context>
    <name>explorer::CodeView</name>
    <message>
        <source>C&amp;opy</source>
        <translation>复制(&amp;O)</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>显示全部</translation>
    </message>
    <message>
        <source>Characters %1 to %2 of %3; search and copy cover the whole text.</source>
        <extracomment>%1 and %2 are the first and the last character shown, %3 is the number of all</extracomment>
        <translation>第 %1 至 %2 个字符，共 %3 个；搜索和复制涵盖全部。</translation>
    </message>
</context>
<context>
    <name>explorer::CommandLine</name>
    <message>
        <source>Makes any APIModule call from a graphical interface.</source>
        <translation>在图形界面中调用 APIModule 的任意接口。</translation>
    </message>
    <message>
        <source>Select and start the emulator.</source>
        <translation>选择并启动模拟器。</translation>
    </message>
    <message>
        <source>Show this call, such as BRMS.GetLocalSetting.</source>
        <translation>显示此调用，例如 BRMS.GetLocalSetting。</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Print the time until the window is first painted, then exit.</source>
        <translation>输出窗口首次绘制所需的时间，然后退出。</translation>
    </message>
</context>
<context>
    <name>explorer::CompareDialog</name>
    <message>
        <source>Compare two runs</source>
        <translation>比较两次运行</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>路径</translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>记录</translation>
    </message>
    <message>
        <source>Request</source>
        <translation>请求</translation>
    </message>
    <message>
        <source>Reply</source>
        <translation>响应</translation>
    </message>
    <message>
        <source>No difference</source>
        <translation>无差异</translation>
    </message>
    <message numerus="yes">
        <source>%n more character(s)</source>
        <translation>
            <numerusform>还有 %n 个字符</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>explorer::EmulatorControl</name>
    <message>
        <source>The emulator is not running.</source>
        <translation>模拟器未运行。</translation>
    </message>
    <message>
        <source>%1 is too much to show here.</source>
        <translation>内容过大（%1），无法在此显示。</translation>
    </message>
</context>
<context>
    <name>explorer::EmulatorPanel</name>
    <message>
        <source>Re&amp;quests</source>
        <translation>请求(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Faults</source>
        <translation>故障(&amp;F)</translation>
    </message>
    <message>
        <source>St&amp;ate</source>
        <translation>状态(&amp;A)</translation>
    </message>
    <message>
        <source>Sta&amp;rt</source>
        <translation>启动(&amp;R)</translation>
    </message>
    <message>
        <source>The emulator is starting</source>
        <translation>模拟器正在启动</translation>
    </message>
    <message>
        <source>The emulator is not running. Press its button to start it, or make a call.</source>
        <translation>模拟器未运行。可通过按钮启动，也会在首次调用时自动启动。</translation>
    </message>
</context>
<context>
    <name>explorer::EmulatorRequests</name>
    <message>
        <source>No reply</source>
        <translation>无响应</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>等待中</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>方法</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>路径</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态码</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>代码</translation>
    </message>
</context>
<context>
    <name>explorer::FaultForm</name>
    <message>
        <source>Delayed reply</source>
        <translation>延迟响应</translation>
    </message>
    <message>
        <source>HTTP status</source>
        <translation>HTTP 状态码</translation>
    </message>
    <message>
        <source>Envelope with a code</source>
        <translation>指定代码的响应</translation>
    </message>
    <message>
        <source>Empty reply</source>
        <translation>空响应</translation>
    </message>
    <message>
        <source>First half of the body</source>
        <translation>只有前一半正文</translation>
    </message>
    <message>
        <source>Reply that is not JSON</source>
        <translation>非 JSON 响应</translation>
    </message>
    <message>
        <source>Reply with this body</source>
        <translation>指定正文的响应</translation>
    </message>
    <message>
        <source>Large reply</source>
        <translation>超大响应</translation>
    </message>
    <message>
        <source>Slow reply</source>
        <translation>慢速响应</translation>
    </message>
    <message>
        <source>Connection closed without a reply</source>
        <translation>未响应即关闭连接</translation>
    </message>
    <message>
        <source>Connection closed mid-reply</source>
        <translation>响应中途关闭连接</translation>
    </message>
    <message>
        <source>Connection reset</source>
        <translation>连接被重置</translation>
    </message>
    <message>
        <source>No reply</source>
        <translation>无响应</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> 毫秒</translation>
    </message>
    <message>
        <source>Every call</source>
        <translation>所有调用</translation>
    </message>
    <message>
        <source>Every method</source>
        <translation>所有方法</translation>
    </message>
    <message>
        <source>Every path</source>
        <translation>所有路径</translation>
    </message>
    <message>
        <source>Beginning of the request path, including the query</source>
        <translation>请求路径（含查询字符串）的开头部分</translation>
    </message>
    <message>
        <source>With 2, the first matching call passes</source>
        <translation>2 表示放行第一个匹配的调用</translation>
    </message>
    <message>
        <source>Until removed</source>
        <translation>不限次数</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>调用</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>方法</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>路径</translation>
    </message>
    <message>
        <source>Starts at match</source>
        <translation>从第几次匹配起</translation>
    </message>
    <message>
        <source>Times</source>
        <translation>次数</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>延迟</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态码</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>代码</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source> bytes</source>
        <translation> 字节</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速率</translation>
    </message>
    <message>
        <source> bytes/s</source>
        <translation> 字节/秒</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Headers</source>
        <translation>标头</translation>
    </message>
    <message>
        <source>Body</source>
        <translation>正文</translation>
    </message>
</context>
<context>
    <name>explorer::FaultsPage</name>
    <message>
        <source>%1 ms</source>
        <translation>%1 毫秒</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>移除(&amp;M)</translation>
    </message>
    <message>
        <source>Remove a&amp;ll</source>
        <translation>全部移除(&amp;L)</translation>
    </message>
    <message>
        <source>A&amp;dd</source>
        <translation>添加(&amp;D)</translation>
    </message>
    <message>
        <source>Faults</source>
        <translation>故障</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>故障</translation>
    </message>
    <message>
        <source>Calls</source>
        <translation>调用</translation>
    </message>
    <message>
        <source>Skips left</source>
        <translation>剩余放行次数</translation>
    </message>
    <message>
        <source>Times left</source>
        <translation>剩余次数</translation>
    </message>
    <message>
        <source>Until removed</source>
        <translation>不限次数</translation>
    </message>
</context>
<context>
    <name>explorer::Feed</name>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>级别</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>函数</translation>
    </message>
    <message>
        <source>Verbose</source>
        <translation>详细</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>调试</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Failure</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Fatal</source>
        <translation>致命</translation>
    </message>
</context>
<context>
    <name>explorer::FeedPanel</name>
    <message>
        <source>No log lines</source>
        <translation>没有日志</translation>
    </message>
    <message>
        <source>No notifications</source>
        <translation>没有通知</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>级别</translation>
    </message>
    <message>
        <source>All levels</source>
        <translation>所有级别</translation>
    </message>
    <message>
        <source>%1 and above</source>
        <translation>%1及以上</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
</context>
<context>
    <name>explorer::FindBar</name>
    <message>
        <source>Previous match (Shift+F3)</source>
        <translation>上一个匹配 (Shift+F3)</translation>
    </message>
    <message>
        <source>Next match (F3)</source>
        <translation>下一个匹配 (F3)</translation>
    </message>
    <message>
        <source>Find in the text</source>
        <translation>在文本中查找</translation>
    </message>
    <message>
        <source>Find (Ctrl+F)</source>
        <translation>查找 (Ctrl+F)</translation>
    </message>
    <message>
        <source>No match</source>
        <extracomment>%1 is the number of the current match, %2 that of all</extracomment>
        <translation>无匹配</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
</context>
<context>
    <name>explorer::History</name>
    <message>
        <source>%1 (%2)</source>
        <extracomment>How a run ended: %1 is its text, %2 the number of its result</extracomment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 毫秒</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>调用</translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>服务器</translation>
    </message>
    <message>
        <source>End</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>耗时</translation>
    </message>
</context>
<context>
    <name>explorer::HistoryPanel</name>
    <message>
        <source>No runs</source>
        <translation>没有运行记录</translation>
    </message>
    <message>
        <source>Run again</source>
        <translation>再次运行</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>载入</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>比较</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>导出…</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>Load the arguments into the form</source>
        <translation>将参数载入表单</translation>
    </message>
    <message>
        <source>Exports the selected runs as an HTTP archive (HAR) or as a C++ test</source>
        <translation>将所选运行记录导出为 HTTP 存档 (HAR) 或 C++ 测试</translation>
    </message>
    <message>
        <source>History size limit</source>
        <translation>历史记录大小上限</translation>
    </message>
    <message>
        <source>Above this size, the oldest runs are dropped</source>
        <translation>超出上限时删除最早的运行记录</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Save to file</source>
        <translation>存入文件</translation>
    </message>
    <message>
        <source>Keeps the runs for the next start, without tokens</source>
        <translation>为下次启动保留运行记录，不含令牌</translation>
    </message>
    <message>
        <source>%1 of</source>
        <extracomment>%1 megabytes are taken; a field with the limit follows</extracomment>
        <translation>%1 /</translation>
    </message>
    <message>
        <source>Export the selected runs</source>
        <translation>导出所选运行记录</translation>
    </message>
    <message>
        <source>HTTP archive</source>
        <translation>HTTP 存档</translation>
    </message>
    <message>
        <source>C++ test</source>
        <translation>C++ 测试</translation>
    </message>
</context>
<context>
    <name>explorer::Limits</name>
    <message>
        <source>Must be one of: %1</source>
        <translation>必须是以下之一：%1</translation>
    </message>
    <message>
        <source>Must be %1 or more</source>
        <translation>必须大于或等于 %1</translation>
    </message>
    <message>
        <source>Must be %1 or less</source>
        <translation>必须小于或等于 %1</translation>
    </message>
</context>
<context>
    <name>explorer::ListEditor</name>
    <message>
        <source>Add element</source>
        <translation>添加元素</translation>
    </message>
    <message>
        <source>The list is empty.</source>
        <translation>列表为空。</translation>
    </message>
    <message>
        <source>Add an element to %1</source>
        <translation>向 %1 添加元素</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
</context>
<context>
    <name>explorer::MainWindow</name>
    <message>
        <source>APIModule Explorer</source>
        <translation>APIModule 接口调试工具</translation>
    </message>
    <message>
        <source>The emulator exited: %1</source>
        <translation>模拟器已退出：%1</translation>
    </message>
    <message>
        <source>The token is in the desktop&apos;s secret service.</source>
        <translation>令牌已存入桌面的密钥环。</translation>
    </message>
    <message>
        <source>No secret service is available: the token is kept until the program exits.</source>
        <translation>没有可用的密钥环：令牌仅保留到程序结束。</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>服务器</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Request</source>
        <translation>请求</translation>
    </message>
    <message>
        <source>Timing</source>
        <translation>耗时</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>&amp;Call</source>
        <translation>调用(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>运行(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Find a call</source>
        <translation>查找调用(&amp;F)</translation>
    </message>
    <message>
        <source>T&amp;oggle favourite</source>
        <translation>切换收藏(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Server</source>
        <translation>服务器(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>选择(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>编辑(&amp;E)…</translation>
    </message>
    <message>
        <source>Enter the &amp;token…</source>
        <translation>输入令牌(&amp;T)…</translation>
    </message>
    <message>
        <source>&amp;Start the emulator</source>
        <translation>启动模拟器(&amp;S)</translation>
    </message>
    <message>
        <source>St&amp;op the emulator</source>
        <translation>停止模拟器(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Appearance</source>
        <translation>外观(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Next pane</source>
        <translation>下一个窗格(&amp;N)</translation>
    </message>
    <message>
        <source>Follow the &amp;desktop</source>
        <translation>跟随桌面(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>浅色(&amp;L)</translation>
    </message>
    <message>
        <source>D&amp;ark</source>
        <translation>深色(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>关于(&amp;A)</translation>
    </message>
    <message>
        <source>About APIModule Explorer</source>
        <translation>关于 APIModule 接口调试工具</translation>
    </message>
    <message>
        <source>&lt;h3&gt;APIModule Explorer %1&lt;/h3&gt;&lt;p&gt;Makes any APIModule call from a graphical interface. It is a host with a user manager, wait dialog, notifications and logs.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;APIModule 接口调试工具 %1&lt;/h3&gt;&lt;p&gt;在图形界面中调用 APIModule 的任意接口，是一个带有用户管理、等待对话框、通知和日志的宿主程序。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>关于 &amp;Qt</translation>
    </message>
    <message>
        <source>Choose a call first</source>
        <translation>请先选择调用</translation>
    </message>
    <message>
        <source>The emulator gets a new token at each start.</source>
        <translation>模拟器每次启动都会使用新的令牌。</translation>
    </message>
    <message>
        <source>Log and n&amp;otifications</source>
        <translation>日志和通知(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Go to</source>
        <translation>转到(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Previous pane</source>
        <translation>上一个窗格(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Calls</source>
        <translation>调用(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Arguments</source>
        <translation>参数(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Result</source>
        <translation>结果(&amp;R)</translation>
    </message>
    <message>
        <source>Re&amp;quest</source>
        <translation>请求(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Timing</source>
        <translation>耗时(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Log</source>
        <translation>日志(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Notifications</source>
        <translation>通知(&amp;N)</translation>
    </message>
    <message>
        <source>The call runs as soon as the emulator has started.</source>
        <translation>模拟器启动后将立即运行该调用。</translation>
    </message>
    <message>
        <source>Choose a call to see its request here.</source>
        <translation>选择调用后，此处显示其请求。</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>历史(&amp;H)</translation>
    </message>
    <message>
        <source>An argument has an invalid value</source>
        <translation>有参数的值无效</translation>
    </message>
    <message>
        <source>Emulator</source>
        <translation>模拟器</translation>
    </message>
    <message>
        <source>&amp;Emulator</source>
        <translation>模拟器(&amp;E)</translation>
    </message>
</context>
<context>
    <name>explorer::NameLabel</name>
    <message>
        <source>Allowed: %1</source>
        <translation>允许：%1</translation>
    </message>
    <message>
        <source>Example: %1</source>
        <translation>示例：%1</translation>
    </message>
</context>
<context>
    <name>explorer::NotificationFeed</name>
    <message>
        <source>Success</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Failure</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>结果</translation>
    </message>
</context>
<context>
    <name>explorer::NumberBox</name>
    <message>
        <source>Enter a number</source>
        <translation>请输入数字</translation>
    </message>
    <message>
        <source>Must be a number, such as 0.5</source>
        <translation>必须是数字，例如 0.5</translation>
    </message>
    <message>
        <source>Must be from %1 to %2</source>
        <translation>必须在 %1 到 %2 之间</translation>
    </message>
    <message>
        <source>Not a whole number</source>
        <translation>不是整数</translation>
    </message>
</context>
<context>
    <name>explorer::OverwriteDialog</name>
    <message>
        <source>Overwrite values on the server?</source>
        <translation>覆盖服务器上的值？</translation>
    </message>
    <message>
        <source>%1 sends values that you have not entered. They replace those on the server.</source>
        <translation>%1 将发送您未输入的值。它们会替换服务器上的值。</translation>
    </message>
    <message>
        <source>%1 sends values that you have not entered. The values they replace are unknown.</source>
        <translation>%1 将发送您未输入的值。无法确定它们会替换哪些值。</translation>
    </message>
    <message>
        <source>Changed values</source>
        <translation>将要更改的值</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>字段</translation>
    </message>
    <message>
        <source>On the server</source>
        <translation>服务器上</translation>
    </message>
    <message>
        <source>Will be sent</source>
        <translation>将发送</translation>
    </message>
    <message>
        <source>Entered</source>
        <translation>是否输入</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>no</source>
        <translation>否</translation>
    </message>
    <message>
        <source>&amp;Send anyway</source>
        <translation>仍然发送(&amp;S)</translation>
    </message>
</context>
<context>
    <name>explorer::RecordModel</name>
    <message>
        <source>Result</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Elements: %1</source>
        <translation>元素：%1</translation>
    </message>
    <message>
        <source>not in the reply</source>
        <translation>响应中不存在</translation>
    </message>
</context>
<context>
    <name>explorer::RecordTable</name>
    <message>
        <source>&amp;List:</source>
        <translation>列表(&amp;L)：</translation>
    </message>
    <message>
        <source>&amp;Export CSV…</source>
        <translation>导出 CSV(&amp;E)…</translation>
    </message>
    <message>
        <source>Text in any column</source>
        <translation>任意列中的文本</translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation>筛选(&amp;F)：</translation>
    </message>
    <message>
        <source>Export the table</source>
        <translation>导出表格</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>逗号分隔值 (*.csv)</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>无法写入 %1。</translation>
    </message>
    <message>
        <source>Rows: %1</source>
        <translation>行数：%1</translation>
    </message>
    <message>
        <source>Rows: %1 of %2</source>
        <translation>行数：%1 / %2</translation>
    </message>
</context>
<context>
    <name>explorer::RecordTableModel</name>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
</context>
<context>
    <name>explorer::RecordTree</name>
    <message>
        <source>Record</source>
        <translation>记录</translation>
    </message>
    <message>
        <source>Filter the record</source>
        <translation>筛选记录</translation>
    </message>
    <message>
        <source>Filter by name or value (Ctrl+F)</source>
        <translation>按名称或值筛选 (Ctrl+F)</translation>
    </message>
    <message>
        <source>Copy the &amp;value</source>
        <translation>复制值(&amp;V)</translation>
    </message>
    <message>
        <source>Copy the &amp;path</source>
        <translation>复制路径(&amp;P)</translation>
    </message>
    <message>
        <source>Copy as &amp;JSON, with children</source>
        <translation>复制为 JSON（含所有子元素）(&amp;J)</translation>
    </message>
    <message>
        <source>Matches: %1</source>
        <translation>匹配：%1</translation>
    </message>
</context>
<context>
    <name>explorer::RequestView</name>
    <message>
        <source>The request has no body.</source>
        <translation>请求没有正文。</translation>
    </message>
    <message>
        <source>Header</source>
        <translation>标头</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>&amp;Body</source>
        <translation>正文(&amp;B)</translation>
    </message>
    <message>
        <source>c&amp;url</source>
        <translation>c&amp;url</translation>
    </message>
    <message>
        <source>C&amp;++</source>
        <translation>C&amp;++</translation>
    </message>
    <message>
        <source>Re&amp;quest:</source>
        <translation>请求(&amp;Q)：</translation>
    </message>
    <message>
        <source>Hea&amp;ders</source>
        <translation>标头(&amp;D)</translation>
    </message>
    <message>
        <source>The request cannot be built.</source>
        <translation>无法生成请求。</translation>
    </message>
    <message>
        <source>a&amp;picall</source>
        <translation>apicall(&amp;P)</translation>
    </message>
</context>
<context>
    <name>explorer::RequestsPage</name>
    <message>
        <source>No requests</source>
        <translation>没有请求</translation>
    </message>
    <message>
        <source>Choose a request to see its headers and its body.</source>
        <translation>选择一个请求后，此处显示其标头和正文。</translation>
    </message>
    <message>
        <source>Requests</source>
        <translation>请求</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>清空(&amp;L)</translation>
    </message>
</context>
<context>
    <name>explorer::ResultHeader</name>
    <message>
        <source>Result %1</source>
        <translation>结果 %1</translation>
    </message>
    <message>
        <source>HTTP %1</source>
        <translation>HTTP %1</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 毫秒</translation>
    </message>
    <message>
        <source>The server reports: %1</source>
        <translation>服务器返回信息：%1</translation>
    </message>
    <message>
        <source>%1 is running</source>
        <translation>%1 正在运行</translation>
    </message>
    <message>
        <source>Waiting for the server</source>
        <translation>正在等待服务器</translation>
    </message>
    <message>
        <source>Not run yet</source>
        <translation>尚未运行</translation>
    </message>
    <message>
        <source>Result and time of the run appear here.</source>
        <translation>此处显示运行的结果和耗时。</translation>
    </message>
    <message>
        <source>time-out %1 s</source>
        <translation>超时 %1 秒</translation>
    </message>
    <message>
        <source>Connection: %1</source>
        <translation>连接：%1</translation>
    </message>
</context>
<context>
    <name>explorer::ResultView</name>
    <message>
        <source>&amp;Record</source>
        <translation>记录(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;JSON</source>
        <translation>&amp;JSON</translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation>表格(&amp;T)</translation>
    </message>
    <message>
        <source>This call returns no record.</source>
        <translation>此调用不返回记录。</translation>
    </message>
    <message>
        <source>Run a call to see its result here.</source>
        <translation>运行调用后，此处显示其结果。</translation>
    </message>
    <message>
        <source>There is no list in this record.</source>
        <translation>此记录中没有列表。</translation>
    </message>
    <message>
        <source>There is no record.</source>
        <translation>没有记录。</translation>
    </message>
    <message>
        <source>The reply contained no data for a record.</source>
        <translation>响应中没有记录的数据。</translation>
    </message>
    <message>
        <source>Nothing was sent.</source>
        <translation>未发送任何内容。</translation>
    </message>
    <message>
        <source>No request was made.</source>
        <translation>未发出请求。</translation>
    </message>
    <message>
        <source>Raw e&amp;xchange</source>
        <translation>原始报文(&amp;X)</translation>
    </message>
</context>
<context>
    <name>explorer::RunBar</name>
    <message>
        <source>Run</source>
        <translation>运行</translation>
    </message>
    <message>
        <source>Run the call (F5)</source>
        <translation>运行调用 (F5)</translation>
    </message>
    <message>
        <source>Behind the wait dialog</source>
        <translation>显示等待对话框</translation>
    </message>
    <message>
        <source>In the event loop, input allowed</source>
        <translation>在事件循环中等待，可继续操作</translation>
    </message>
    <message>
        <source>&amp;Wait</source>
        <translation>等待方式(&amp;W)</translation>
    </message>
    <message>
        <source>Call&apos;s default</source>
        <translation>调用默认值</translation>
    </message>
    <message>
        <source> s</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source>T&amp;ime-out</source>
        <translation>超时(&amp;I)</translation>
    </message>
    <message numerus="yes">
        <source>%n call(s) waiting for the server</source>
        <translation>
            <numerusform>%n 个调用正在等待服务器</numerusform>
        </translation>
    </message>
    <message>
        <source>Not at all, several at once</source>
        <translation>不等待，可同时运行多个</translation>
    </message>
    <message>
        <source>The longest time-out is %1 s.</source>
        <translation>超时时间最长为 %1 秒。</translation>
    </message>
</context>
<context>
    <name>explorer::Runner</name>
    <message>
        <source>%1 failed</source>
        <translation>%1 失败</translation>
    </message>
    <message>
        <source>%1 succeeded</source>
        <translation>%1 成功</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>已取消</translation>
    </message>
</context>
<context>
    <name>explorer::RunningCalls</name>
    <message>
        <source>Running calls</source>
        <translation>正在运行的调用</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Cancel %1</source>
        <extracomment>%1 is a call</extracomment>
        <translation>取消 %1</translation>
    </message>
</context>
<context>
    <name>explorer::ServerBar</name>
    <message>
        <source>Servers…</source>
        <translation>服务器…</translation>
    </message>
    <message>
        <source>Stop the emulator</source>
        <translation>停止模拟器</translation>
    </message>
    <message>
        <source>Start the emulator</source>
        <translation>启动模拟器</translation>
    </message>
    <message>
        <source>The emulator is starting</source>
        <translation>模拟器正在启动</translation>
    </message>
    <message>
        <source>The emulator is not running</source>
        <translation>模拟器未运行</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>服务器</translation>
    </message>
</context>
<context>
    <name>explorer::Servers</name>
    <message>
        <source>Built-in emulator</source>
        <translation>内置模拟器</translation>
    </message>
</context>
<context>
    <name>explorer::ServersDialog</name>
    <message>
        <source>Servers</source>
        <translation>服务器</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Host name or IP address</source>
        <translation>主机名或 IP 地址</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>不变</translation>
    </message>
    <message>
        <source>Language for the server&apos;s replies</source>
        <translation>服务器响应所用的语言</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>名称(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Scheme</source>
        <translation>协议(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Host</source>
        <translation>主机(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Port</source>
        <translation>端口(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>New server</source>
        <translation>新服务器</translation>
    </message>
    <message>
        <source>any free port</source>
        <translation>任意空闲端口</translation>
    </message>
    <message>
        <source>New at each start</source>
        <translation>每次启动时重新生成</translation>
    </message>
    <message>
        <source>Asked for when needed</source>
        <translation>需要时询问</translation>
    </message>
    <message>
        <source>A server needs a name.</source>
        <translation>必须填写服务器名称。</translation>
    </message>
    <message>
        <source>“%1” needs a host name or an IP address (IPv6 in brackets).</source>
        <translation>必须为“%1”填写主机名或 IP 地址（IPv6 地址加方括号）。</translation>
    </message>
    <message>
        <source>“%1” needs a language.</source>
        <translation>必须为“%1”选择语言。</translation>
    </message>
    <message>
        <source>To&amp;ken</source>
        <translation>令牌(&amp;K)</translation>
    </message>
    <message>
        <source>Fetch from the server</source>
        <translation>从服务器获取</translation>
    </message>
    <message>
        <source>Trust this certificate</source>
        <translation>信任此证书</translation>
    </message>
    <message>
        <source>Trust any certificate</source>
        <translation>信任任何证书</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>证书</translation>
    </message>
    <message>
        <source>None: everything is sent unencrypted.</source>
        <translation>无：所有内容都以明文传输。</translation>
    </message>
    <message>
        <source>Only this certificate is trusted (SHA-256):
%1</source>
        <translation>只信任此证书（SHA-256）：
%1</translation>
    </message>
    <message>
        <source>Any certificate is trusted: anyone who intercepts the connection can read the token.</source>
        <translation>信任任何证书：截获连接的人可以读取令牌。</translation>
    </message>
    <message>
        <source>Fetching the certificate…</source>
        <translation>正在获取证书…</translation>
    </message>
    <message>
        <source>The server presented no certificate: %1</source>
        <translation>服务器没有出示证书：%1</translation>
    </message>
    <message>
        <source>The server presents this certificate.</source>
        <translation>服务器出示的正是此证书。</translation>
    </message>
    <message>
        <source>The server presents (SHA-256):
%1</source>
        <translation>服务器出示的证书（SHA-256）：
%1</translation>
    </message>
    <message>
        <source>The certificate has changed: someone may be impersonating the server. Compare the digest with the one on the server.</source>
        <translation>证书已更改：可能有人冒充服务器。请与服务器上的摘要核对。</translation>
    </message>
</context>
<context>
    <name>explorer::StartPage</name>
    <message>
        <source>Multiplies the length of the seeded lists</source>
        <translation>初始数据中列表长度的倍数</translation>
    </message>
    <message>
        <source>The built-in seed data</source>
        <translation>内置初始数据</translation>
    </message>
    <message>
        <source>Cho&amp;ose…</source>
        <translation>选择(&amp;O)…</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>倍数</translation>
    </message>
    <message>
        <source>Seed folder</source>
        <translation>初始数据文件夹</translation>
    </message>
    <message>
        <source>Folder of the seed data</source>
        <translation>初始数据文件夹</translation>
    </message>
    <message>
        <source>Restar&amp;t with these settings</source>
        <translation>按此设置重新启动(&amp;T)</translation>
    </message>
    <message>
        <source>Star&amp;t with these settings</source>
        <translation>按此设置启动(&amp;T)</translation>
    </message>
</context>
<context>
    <name>explorer::StatePage</name>
    <message>
        <source>A&amp;pply</source>
        <translation>应用(&amp;P)</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>部分</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Applies your changes as a JSON merge patch</source>
        <translation>以 JSON 合并补丁的形式应用您的修改</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>重新加载(&amp;L)</translation>
    </message>
    <message>
        <source>Shows the current state; unapplied changes are lost</source>
        <translation>显示当前状态；未应用的修改将丢失</translation>
    </message>
    <message>
        <source>Rese&amp;t</source>
        <translation>重置(&amp;T)</translation>
    </message>
    <message>
        <source>Restores the seed data</source>
        <translation>恢复为初始数据</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>This part is too long to edit. Choose a smaller one.</source>
        <translation>该部分过长，无法编辑。请选择较小的部分。</translation>
    </message>
    <message>
        <source>Line %1 is not JSON.</source>
        <translation>第 %1 行不是 JSON。</translation>
    </message>
    <message>
        <source>A merge patch cannot make a member null.</source>
        <translation>合并补丁无法将成员设为 null。</translation>
    </message>
    <message>
        <source>The state was changed.</source>
        <translation>状态已修改。</translation>
    </message>
    <message>
        <source>The seed data was restored.</source>
        <translation>已恢复初始数据。</translation>
    </message>
    <message>
        <source>The emulator rejected the change: %1</source>
        <translation>模拟器拒绝了该修改：%1</translation>
    </message>
</context>
<context>
    <name>explorer::TimingChart</name>
    <message>
        <source>Call</source>
        <translation>调用</translation>
    </message>
    <message>
        <source>Milliseconds</source>
        <translation>毫秒</translation>
    </message>
    <message>
        <source>Succeeded</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>中位数</translation>
    </message>
    <message>
        <source>95th percentile</source>
        <translation>第 95 百分位</translation>
    </message>
    <message>
        <source>%1: %2 ms</source>
        <translation>%1：%2 毫秒</translation>
    </message>
</context>
<context>
    <name>explorer::TimingView</name>
    <message>
        <source>Re&amp;peat</source>
        <translation>重复(&amp;P)</translation>
    </message>
    <message>
        <source>C&amp;ancel</source>
        <translation>取消(&amp;A)</translation>
    </message>
    <message>
        <source>Run a call to see how long it takes.</source>
        <translation>运行调用后，此处显示其耗时。</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>中位数</translation>
    </message>
    <message>
        <source>95th percentile</source>
        <translation>第 95 百分位</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source> times</source>
        <translation> 次</translation>
    </message>
    <message>
        <source>Ru&amp;n the call</source>
        <translation>运行调用(&amp;N)</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 毫秒</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>运行次数</translation>
    </message>
    <message>
        <source>This run: sent after %1 ms, first byte after %2 ms, complete after %3 ms</source>
        <translation>本次运行：%1 毫秒后发送，%2 毫秒后收到首字节，%3 毫秒后接收完毕</translation>
    </message>
    <message>
        <source>This run: sent after %1 ms, no byte within %2 ms</source>
        <translation>本次运行：%1 毫秒后发送，至 %2 毫秒未收到任何字节</translation>
    </message>
</context>
<context>
    <name>explorer::TokenDialog</name>
    <message>
        <source>Store it in the desktop&apos;s secret service</source>
        <translation>保存到桌面的密钥环</translation>
    </message>
    <message>
        <source>Session token</source>
        <translation>会话令牌</translation>
    </message>
    <message>
        <source>Session &amp;token for “%1”:</source>
        <translation>“%1”的会话令牌(&amp;T)：</translation>
    </message>
    <message>
        <source>Without a secret service, the token is kept until the program exits. It is never written to a file.</source>
        <translation>没有密钥环时，令牌仅保留到程序结束，且不会写入任何文件。</translation>
    </message>
</context>
<context>
    <name>explorer::TotalsRow</name>
    <message>
        <source>Total</source>
        <translation>合计</translation>
    </message>
</context>
<context>
    <name>explorer::WriteGuard</name>
    <message>
        <source>%1 needs &quot;%2&quot;</source>
        <translation>%1 需要“%2”</translation>
    </message>
    <message>
        <source>The form now has the values from the server.</source>
        <translation>表单已填入服务器上的值。</translation>
    </message>
    <message>
        <source>%1 failed: %2</source>
        <extracomment>%1 is a call, %2 why it failed</extracomment>
        <translation>%1 失败：%2</translation>
    </message>
    <message>
        <source>%1 returned no data</source>
        <translation>%1 未返回数据</translation>
    </message>
</context>
</TS>
