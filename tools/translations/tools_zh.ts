<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh" sourcelanguage="en">
<context>
    <name>Texts</name>
    <message>
        <source>cannot read %1</source>
        <translation>无法读取 %1</translation>
    </message>
    <message>
        <source>cannot open %1</source>
        <translation>无法打开 %1</translation>
    </message>
    <message>
        <source>%1 is not valid JSON: syntax error at byte %2</source>
        <extracomment>%1 is the name of the input, %2 a number</extracomment>
        <translation>%1 不是有效的 JSON：第 %2 个字节处有语法错误</translation>
    </message>
    <message>
        <source>a JSON object must be the only argument</source>
        <translation>JSON 对象必须是唯一的参数</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>标准输入</translation>
    </message>
    <message>
        <source>the argument</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>argument &quot;%1&quot; is neither name=value nor a JSON object</source>
        <translation>参数“%1”既不是“名称=值”，也不是 JSON 对象</translation>
    </message>
    <message>
        <source>argument &quot;%1&quot; is given twice</source>
        <translation>参数“%1”重复指定</translation>
    </message>
    <message>
        <source>argument &quot;%1&quot; (%2)</source>
        <extracomment>%1 is the name, %2 the type</extracomment>
        <translation>参数“%1”（%2）</translation>
    </message>
    <message>
        <source>first byte after %1 ms, complete after %2 ms</source>
        <extracomment>Times in milliseconds</extracomment>
        <translation>首字节耗时 %1 毫秒，总耗时 %2 毫秒</translation>
    </message>
    <message>
        <source>Arguments: none</source>
        <translation>参数：无</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>参数：</translation>
    </message>
    <message>
        <source>Result: none</source>
        <translation>结果：无</translation>
    </message>
    <message>
        <source>Result: %1</source>
        <translation>结果：%1</translation>
    </message>
    <message>
        <source>unknown call &quot;%1&quot;; did you mean &quot;%2&quot;?</source>
        <translation>未知的调用“%1”；您是不是想用“%2”？</translation>
    </message>
    <message>
        <source>unknown call &quot;%1&quot;; run &apos;apicall --list&apos; for all calls</source>
        <translation>未知的调用“%1”；运行“apicall --list”可查看所有调用</translation>
    </message>
    <message>
        <source>the server reports %1</source>
        <extracomment>%1 is the server&apos;s text in quotation marks</extracomment>
        <translation>服务器返回信息：%1</translation>
    </message>
    <message>
        <source>the reply has no valid value for %1</source>
        <extracomment>%1 is a key of a JSON object in quotation marks</extracomment>
        <translation>响应中 %1 缺失或无效</translation>
    </message>
    <message>
        <source>the server does not use TLS on this port; is it the port for http://?</source>
        <translation>服务器在此端口上未使用 TLS；这是不是 http:// 的端口？</translation>
    </message>
    <message>
        <source>--server is missing</source>
        <translation>缺少 --server</translation>
    </message>
    <message>
        <source>--pin and --ca require an https:// server</source>
        <translation>--pin 和 --ca 要求服务器使用 https://</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of this language, for the texts of error codes</extracomment>
        <translation>zh</translation>
    </message>
    <message>
        <source>%1 failed with %2: %3</source>
        <extracomment>%1 is the call, %2 a code, %3 its text</extracomment>
        <translation>%1 失败，代码 %2：%3</translation>
    </message>
    <message>
        <source>--merge: %1 has no matching read call</source>
        <extracomment>%1 is a call</extracomment>
        <translation>--merge：%1 没有对应的读取调用</translation>
    </message>
    <message>
        <source>cannot write the result</source>
        <translation>无法输出结果</translation>
    </message>
    <message>
        <source>no call given; run &apos;apicall --help&apos; for usage</source>
        <translation>未指定调用；用法请运行“apicall --help”查看</translation>
    </message>
    <message>
        <source>Arguments of a call:
  name=value        one argument; text is taken literally, all other types are JSON
  name/field=value  one field of a record; name/0 is the first element of a list
  {&quot;name&quot;: value}   all arguments as one JSON object; @FILE reads it from a file, - from standard input

Examples:
  $ apicall --list
  $ apicall --help BRMS.GetLocalSetting
  $ apicall --server https://127.0.0.1:8443 BRMS.GetLocalSetting settingType=3
  $ apicall --server https://127.0.0.1:8443 --merge BRMS.SetTimeSyncConfig config/interval=30

Standard output contains only the result, null for a call without one. Log lines and errors go to standard error.
Exit status: 0 success, 1 failed call, 2 usage error.</source>
        <translation>调用的参数：
  名称=值          单个参数；文本按原样使用，其他类型使用 JSON
  名称/字段=值     记录的一个字段；名称/0 表示列表的第一个元素
  {&quot;名称&quot;: 值}     用一个 JSON 对象给出全部参数；@文件 表示从文件读取，- 表示从标准输入读取

示例：
  $ apicall --list
  $ apicall --help BRMS.GetLocalSetting
  $ apicall --server https://127.0.0.1:8443 BRMS.GetLocalSetting settingType=3
  $ apicall --server https://127.0.0.1:8443 --merge BRMS.SetTimeSyncConfig config/interval=30

标准输出只包含结果，没有结果的调用输出 null。日志和错误写到标准错误输出。
退出状态：0 成功，1 调用失败，2 用法错误。</translation>
    </message>
    <message>
        <source>Makes one call to a platform server and prints the result as JSON.</source>
        <translation>对平台服务器执行一次调用，并以 JSON 格式输出结果。</translation>
    </message>
    <message>
        <source>Print this help, or describe the arguments and result of CALL</source>
        <translation>显示此帮助，或说明 CALL 的参数和结果</translation>
    </message>
    <message>
        <source>Print the version</source>
        <translation>显示版本</translation>
    </message>
    <message>
        <source>List the calls</source>
        <translation>列出所有调用</translation>
    </message>
    <message>
        <source>Print only names: those of the calls, or of the arguments of CALL</source>
        <translation>仅输出名称：所有调用的名称，或 CALL 的参数名称</translation>
    </message>
    <message>
        <source>Write log lines only if the call fails</source>
        <translation>仅在调用失败时输出日志</translation>
    </message>
    <message>
        <source>Write request and reply to standard error, with the token masked</source>
        <translation>将请求和响应写到标准错误输出，令牌以掩码显示</translation>
    </message>
    <message>
        <source>Print the request, with the token masked, without sending it</source>
        <translation>输出请求但不发送，令牌以掩码显示</translation>
    </message>
    <message>
        <source>For a call that writes a record: read the current record, apply each ARGUMENT, and write the result back</source>
        <translation>用于写入记录的调用：读取当前记录，应用各个 ARGUMENT，再写回结果</translation>
    </message>
    <message>
        <source>Platform server: https://host[:port] or http://host[:port]</source>
        <translation>平台服务器：https://主机[:端口] 或 http://主机[:端口]</translation>
    </message>
    <message>
        <source>Session token; pass it in the environment to keep it out of the process list</source>
        <translation>会话令牌；通过环境变量传递可避免出现在进程列表中</translation>
    </message>
    <message>
        <source>Trust only servers with this SHA-256 digest of their certificate or public key; repeatable</source>
        <translation>只信任证书或公钥的 SHA-256 摘要与此相符的服务器；可多次指定</translation>
    </message>
    <message>
        <source>DIGEST</source>
        <extracomment>Stands for the value of --pin</extracomment>
        <translation>摘要</translation>
    </message>
    <message>
        <source>Trust only servers whose certificate was signed by an authority in this PEM file; repeatable</source>
        <translation>只信任证书由此 PEM 文件中的证书颁发机构签发的服务器；可多次指定</translation>
    </message>
    <message>
        <source>FILE</source>
        <extracomment>Stands for the value of --ca</extracomment>
        <translation>文件</translation>
    </message>
    <message>
        <source>Language of error texts and of the server&apos;s texts, which are English by default</source>
        <translation>错误文本和服务器文本的语言；服务器文本默认为英语</translation>
    </message>
    <message>
        <source>Server identifier passed to the call</source>
        <translation>传递给调用的服务器标识</translation>
    </message>
    <message>
        <source>Time-out of the call, 10 s by default</source>
        <translation>调用的超时时间，默认 10 秒</translation>
    </message>
    <message>
        <source>SECONDS</source>
        <extracomment>Stands for the value of --timeout</extracomment>
        <translation>秒数</translation>
    </message>
    <message>
        <source>Name of the call</source>
        <translation>调用的名称</translation>
    </message>
    <message>
        <source>Arguments of the call</source>
        <translation>调用的参数</translation>
    </message>
    <message>
        <source>not a valid URL</source>
        <translation>不是有效的 URL</translation>
    </message>
    <message>
        <source>must begin with https:// or http://</source>
        <translation>必须以 https:// 或 http:// 开头</translation>
    </message>
    <message>
        <source>host is missing</source>
        <translation>缺少主机名</translation>
    </message>
    <message>
        <source>only a host and a port may follow the scheme</source>
        <translation>协议之后只能有主机和端口</translation>
    </message>
    <message>
        <source>a SHA-256 digest has 64 hexadecimal digits, with or without colons</source>
        <translation>SHA-256 摘要由 64 个十六进制数字组成，可用冒号分隔</translation>
    </message>
    <message>
        <source>the file cannot be read</source>
        <translation>无法读取该文件</translation>
    </message>
    <message>
        <source>the file contains no PEM certificate</source>
        <translation>该文件不包含 PEM 格式的证书</translation>
    </message>
    <message>
        <source>%1 has no argument &quot;%2&quot;; it takes no arguments</source>
        <extracomment>%1 is a call</extracomment>
        <translation>%1 没有参数“%2”；此调用不带参数</translation>
    </message>
    <message>
        <source>%1 has no argument &quot;%2&quot;; did you mean &quot;%3&quot;?</source>
        <extracomment>%1 is a call, %3 the name of one of its arguments</extracomment>
        <translation>%1 没有参数“%2”；您是不是想用“%3”？</translation>
    </message>
    <message>
        <source>%1 has no argument &quot;%2&quot;; its arguments are: %3</source>
        <extracomment>%1 is a call, %3 the names of its arguments</extracomment>
        <translation>%1 没有参数“%2”；可用的参数：%3</translation>
    </message>
    <message>
        <source>the arguments of %1 must be a JSON object with the argument names as keys</source>
        <translation>%1 的参数必须是一个以参数名称为键的 JSON 对象</translation>
    </message>
    <message>
        <source>%1 requires the argument &quot;%2&quot; (%3)</source>
        <extracomment>%1 is a call, %3 a type</extracomment>
        <translation>%1 需要参数“%2”（%3）</translation>
    </message>
    <message>
        <source>%1, which runs first, requires &quot;%2&quot; of %3</source>
        <extracomment>%1 is the call that reads the record, %2 an argument, %3 the call that the user runs</extracomment>
        <translation>先执行的 %1 需要 %3 的“%2”</translation>
    </message>
    <message>
        <source>/%1: no such field or element in %2</source>
        <extracomment>%1 is a path such as /config/interval, %2 a type</extracomment>
        <translation>/%1：%2 中没有此字段或元素</translation>
    </message>
    <message>
        <source>text</source>
        <extracomment>A type beside bool, int, int64 and double</extracomment>
        <translation>文本</translation>
    </message>
    <message>
        <source>list of %1</source>
        <extracomment>%1 is the type of its elements</extracomment>
        <translation>%1 列表</translation>
    </message>
    <message>
        <source>integer</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>number that is not a 64-bit integer</source>
        <translation>非 64 位整数的数值</translation>
    </message>
    <message>
        <source>list</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>object</source>
        <translation>对象</translation>
    </message>
    <message>
        <source>expected %1, got %2</source>
        <extracomment>Both are types</extracomment>
        <translation>应为 %1，实为 %2</translation>
    </message>
    <message>
        <source>%1 is out of range for %2</source>
        <extracomment>%1 is a number, %2 a type</extracomment>
        <translation>%1 超出 %2 的取值范围</translation>
    </message>
    <message>
        <source>%1 has no such field</source>
        <extracomment>%1 is a type</extracomment>
        <translation>%1 没有此字段</translation>
    </message>
    <message>
        <source>duplicate key &apos;%1&apos;</source>
        <translation>键“%1”重复</translation>
    </message>
    <message>
        <source>%1: $ref must be a string and the only key</source>
        <translation>%1：$ref 必须是字符串，且是唯一的键</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; does not refer to a file of the contract</source>
        <translation>%1：“%2”引用的不是契约中的文件</translation>
    </message>
    <message>
        <source>%1: circular reference &apos;%2&apos;</source>
        <translation>%1：循环引用“%2”</translation>
    </message>
    <message>
        <source>%1: the target of &apos;%2&apos; does not exist</source>
        <translation>%1：“%2”引用的目标不存在</translation>
    </message>
    <message>
        <source>%1: a schema must be an object or a boolean</source>
        <translation>%1：模式必须是对象或布尔值</translation>
    </message>
    <message>
        <source>%1: JSON Schema draft 7 and 2020-12 do not both support this keyword</source>
        <translation>%1：JSON Schema draft 7 和 2020-12 并非都支持此关键字</translation>
    </message>
    <message>
        <source>%1: no reply with code 1000</source>
        <translation>%1：没有代码为 1000 的响应</translation>
    </message>
    <message>
        <source>%1: operation &apos;%2&apos; is defined twice</source>
        <translation>%1：操作“%2”重复定义</translation>
    </message>
    <message>
        <source>the contract folder %1 contains no operation</source>
        <translation>契约文件夹 %1 中没有任何操作</translation>
    </message>
    <message>
        <source>the port is in use</source>
        <translation>端口已被占用</translation>
    </message>
    <message>
        <source>this machine has no such address</source>
        <translation>本机没有此地址</translation>
    </message>
    <message>
        <source>permission denied</source>
        <translation>权限不足</translation>
    </message>
    <message>
        <source>unknown address</source>
        <translation>未知的地址</translation>
    </message>
    <message>
        <source>cannot listen on %1: %2</source>
        <translation>无法监听 %1：%2</translation>
    </message>
    <message>
        <source>platform-emulator: a stateful platform server for development and tests. It serves the contract over both HTTP and HTTPS and prints each address when it starts to listen.</source>
        <translation>platform-emulator：用于开发和测试的有状态平台服务器。它同时通过 HTTP 和 HTTPS 提供契约中的服务，并在开始监听时输出各个地址。</translation>
    </message>
    <message>
        <source>Print this help</source>
        <translation>显示此帮助</translation>
    </message>
    <message>
        <source>Address to listen on</source>
        <translation>监听地址</translation>
    </message>
    <message>
        <source>Port for HTTP; 0 selects a free port</source>
        <translation>HTTP 端口；0 表示自动选择空闲端口</translation>
    </message>
    <message>
        <source>Port for HTTPS; 0 selects a free port</source>
        <translation>HTTPS 端口；0 表示自动选择空闲端口</translation>
    </message>
    <message>
        <source>must not be empty</source>
        <translation>不能为空</translation>
    </message>
    <message>
        <source>Token that clients must send as X-Subject-Token (default: see docs/emulator.md); pass it in the environment to keep it out of the process list</source>
        <translation>客户端必须以 X-Subject-Token 发送的令牌（默认值见 docs/emulator.md）；通过环境变量传递可避免出现在进程列表中</translation>
    </message>
    <message>
        <source>Token that the control path requires as X-Subject-Token (default: none)</source>
        <translation>控制路径要求以 X-Subject-Token 提供的令牌（默认：无）</translation>
    </message>
    <message>
        <source>DIR</source>
        <extracomment>Stands for the value of --contract and of --seed</extracomment>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Folder of the contract (default: ../share/apimodule/contract)</source>
        <translation>契约所在文件夹（默认：../share/apimodule/contract）</translation>
    </message>
    <message>
        <source>Folder of the seed data (default: ../share/apimodule/seed)</source>
        <translation>初始数据所在文件夹（默认：../share/apimodule/seed）</translation>
    </message>
    <message>
        <source>Factor for the length of the seeded lists</source>
        <translation>初始数据中列表长度的倍数</translation>
    </message>
    <message>
        <source>Seconds before an idle connection or an incomplete request is closed</source>
        <translation>空闲连接或不完整的请求在多少秒后关闭</translation>
    </message>
    <message>
        <source>Disable the control path /emulator/v1/</source>
        <translation>禁用控制路径 /emulator/v1/</translation>
    </message>
    <message>
        <source>Print a line for each request</source>
        <translation>为每个请求输出一行</translation>
    </message>
    <message>
        <source>folder %1 contains no seed file</source>
        <translation>文件夹 %1 中没有初始数据文件</translation>
    </message>
    <message>
        <source>cannot create the server certificate</source>
        <translation>无法生成服务器证书</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>用法</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <extracomment>In &quot;Usage: apicall [OPTIONS]&quot;</extracomment>
        <translation>选项</translation>
    </message>
    <message>
        <source>Positionals</source>
        <extracomment>Heading over the arguments other than options</extracomment>
        <translation>参数</translation>
    </message>
    <message>
        <source>Env</source>
        <extracomment>Before the name of an environment variable, short for &quot;environment&quot;</extracomment>
        <translation>环境变量</translation>
    </message>
    <message>
        <source>TEXT</source>
        <extracomment>Stands for the value of an option</extracomment>
        <translation>文本</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>Heading over the options</extracomment>
        <translation>选项</translation>
    </message>
    <message>
        <source>unexpected argument: %1</source>
        <translation>多余的参数：%1</translation>
    </message>
    <message>
        <source>%1 requires exactly one value</source>
        <translation>%1 必须且只能指定一个值</translation>
    </message>
    <message>
        <source>invalid value: %1</source>
        <extracomment>%1 is an option with its value</extracomment>
        <translation>无效的值：%1</translation>
    </message>
    <message>
        <source>%1 is not an integer from %2 to %3</source>
        <translation>%1 不是 %2 到 %3 之间的整数</translation>
    </message>
    <message>
        <source>folder %1 does not exist</source>
        <translation>文件夹 %1 不存在</translation>
    </message>
</context>
<context>
    <name>catalogue::Call</name>
    <message>
        <source>System configuration</source>
        <translation>系统配置</translation>
    </message>
    <message>
        <source>Reads the time synchronisation settings</source>
        <translation>读取校时设置</translation>
    </message>
    <message>
        <source>Writes the time synchronisation settings</source>
        <translation>写入校时设置</translation>
    </message>
    <message>
        <source>Synchronises the time of all devices now</source>
        <translation>立即为所有设备校时</translation>
    </message>
    <message>
        <source>Reads the remote log settings</source>
        <translation>读取远程日志设置</translation>
    </message>
    <message>
        <source>Writes the remote log settings</source>
        <translation>写入远程日志设置</translation>
    </message>
    <message>
        <source>Reads the login model of devices</source>
        <translation>读取设备登录模式</translation>
    </message>
    <message>
        <source>Writes the login model of devices</source>
        <translation>写入设备登录模式</translation>
    </message>
    <message>
        <source>Reads whether messages are pushed to the mobile app</source>
        <translation>读取是否向手机应用推送消息</translation>
    </message>
    <message>
        <source>Enables or disables push messages to the mobile app</source>
        <translation>启用或停用向手机应用推送消息</translation>
    </message>
    <message>
        <source>Lists the supported external databases</source>
        <translation>列出支持的外部数据库</translation>
    </message>
    <message>
        <source>Reads one client setting</source>
        <translation>读取客户端的一项设置</translation>
    </message>
    <message>
        <source>Writes the client setting that was read last</source>
        <translation>写入最近一次读取的客户端设置</translation>
    </message>
    <message>
        <source>Reads the AI privacy switch</source>
        <translation>读取 AI 隐私开关</translation>
    </message>
    <message>
        <source>Sets the AI privacy switch</source>
        <translation>设置 AI 隐私开关</translation>
    </message>
    <message>
        <source>Device and channel configuration</source>
        <translation>设备与通道配置</translation>
    </message>
    <message>
        <source>Reads the network settings of a device</source>
        <translation>读取设备的网络设置</translation>
    </message>
    <message>
        <source>Writes the network settings of a device</source>
        <translation>写入设备的网络设置</translation>
    </message>
    <message>
        <source>Reads the encoding settings of a channel&apos;s streams</source>
        <translation>读取通道各码流的编码设置</translation>
    </message>
    <message>
        <source>Writes the encoding settings of a channel&apos;s streams</source>
        <translation>写入通道各码流的编码设置</translation>
    </message>
    <message>
        <source>Reads the encoding capability of a stream</source>
        <translation>读取码流的编码能力</translation>
    </message>
    <message>
        <source>Reads the image settings of a channel</source>
        <translation>读取通道的图像参数</translation>
    </message>
    <message>
        <source>Writes the image settings of a channel</source>
        <translation>写入通道的图像参数</translation>
    </message>
    <message>
        <source>Reads the multicast settings of a channel</source>
        <translation>读取通道的组播设置</translation>
    </message>
    <message>
        <source>Writes the multicast settings of a channel</source>
        <translation>写入通道的组播设置</translation>
    </message>
    <message>
        <source>Enables or disables multicast for one stream</source>
        <translation>启用或停用一路码流的组播</translation>
    </message>
    <message>
        <source>Device control</source>
        <translation>设备控制</translation>
    </message>
    <message>
        <source>Starts discovery of several devices</source>
        <translation>批量发现设备</translation>
    </message>
    <message>
        <source>Switches alarm outputs on or off</source>
        <translation>打开或关闭报警输出</translation>
    </message>
    <message>
        <source>Switches audio-light alarms on or off</source>
        <translation>打开或关闭声光报警</translation>
    </message>
    <message>
        <source>Plays audio files on IP speakers</source>
        <translation>在 IP 音柱上播放音频文件</translation>
    </message>
    <message>
        <source>Server status warnings</source>
        <translation>服务器状态告警</translation>
    </message>
    <message>
        <source>Checks for a failover to the hot-spare server</source>
        <translation>检查是否已切换到热备服务器</translation>
    </message>
    <message>
        <source>Checks whether the server started with only its basic services</source>
        <translation>检查服务器是否只启动了基础服务</translation>
    </message>
    <message>
        <source>Lists the servers with disk warnings</source>
        <translation>列出有磁盘告警的服务器</translation>
    </message>
    <message>
        <source>Lists the servers that ran out of memory</source>
        <translation>列出内存不足的服务器</translation>
    </message>
    <message>
        <source>Lists the networks known to the system</source>
        <translation>列出系统已知的网络</translation>
    </message>
    <message>
        <source>User groups</source>
        <translation>用户组</translation>
    </message>
    <message>
        <source>Lists the user groups</source>
        <translation>列出用户组</translation>
    </message>
    <message>
        <source>Reads one user group</source>
        <translation>读取一个用户组</translation>
    </message>
    <message>
        <source>Creates a user group</source>
        <translation>新建用户组</translation>
    </message>
    <message>
        <source>Updates the name and description of a user group</source>
        <translation>修改用户组的名称和说明</translation>
    </message>
    <message>
        <source>Moves users to a group</source>
        <translation>将用户移入用户组</translation>
    </message>
    <message>
        <source>Removes all users from a group</source>
        <translation>移除用户组中的所有用户</translation>
    </message>
    <message>
        <source>Deletes user groups</source>
        <translation>删除用户组</translation>
    </message>
    <message>
        <source>Quick commands</source>
        <translation>快捷指令</translation>
    </message>
    <message>
        <source>Creates a quick command</source>
        <translation>新建快捷指令</translation>
    </message>
    <message>
        <source>Updates a quick command</source>
        <translation>修改快捷指令</translation>
    </message>
    <message>
        <source>Deletes quick commands</source>
        <translation>删除快捷指令</translation>
    </message>
    <message>
        <source>Reads one quick command</source>
        <translation>读取一条快捷指令</translation>
    </message>
    <message>
        <source>Lists the quick commands</source>
        <translation>列出快捷指令</translation>
    </message>
    <message>
        <source>Lists the quick commands of an alarm plan</source>
        <translation>列出报警预案的快捷指令</translation>
    </message>
    <message>
        <source>Alarm and event information</source>
        <translation>报警与事件信息</translation>
    </message>
    <message>
        <source>Reads one page of the alarm plans</source>
        <translation>分页读取报警预案</translation>
    </message>
    <message>
        <source>Lists the channels linked to an alarm</source>
        <translation>列出报警联动的通道</translation>
    </message>
    <message>
        <source>Reads the map layer of an alarm resource</source>
        <translation>读取报警资源所在的地图图层</translation>
    </message>
    <message>
        <source>Lists the recorded files of an alarm</source>
        <translation>列出报警的录制文件</translation>
    </message>
    <message>
        <source>Reads the progress of an audio file task</source>
        <translation>读取音频文件任务的进度</translation>
    </message>
    <message>
        <source>Lists the event types of plug-in logs</source>
        <translation>列出插件日志的事件类型</translation>
    </message>
    <message>
        <source>Lists the general events</source>
        <translation>列出通用事件</translation>
    </message>
    <message>
        <source>Account and web access</source>
        <translation>账户与网页访问</translation>
    </message>
    <message>
        <source>Reads the address of a channel&apos;s web page</source>
        <translation>读取通道网页的访问地址</translation>
    </message>
    <message>
        <source>Reads the credentials for a channel&apos;s web page</source>
        <translation>读取通道网页的登录凭据</translation>
    </message>
    <message>
        <source>Checks whether web access is enabled for a channel</source>
        <translation>检查通道是否启用网页访问</translation>
    </message>
    <message>
        <source>Checks whether web access is enabled for a device</source>
        <translation>检查设备是否启用网页访问</translation>
    </message>
    <message>
        <source>Checks whether a menu is available</source>
        <translation>检查菜单是否可用</translation>
    </message>
    <message>
        <source>Derives a token from the account&apos;s session</source>
        <translation>由账户会话派生令牌</translation>
    </message>
    <message>
        <source>Reads the account&apos;s permissions</source>
        <translation>读取账户的权限</translation>
    </message>
    <message>
        <source>Checks whether the account may use a function on a channel</source>
        <translation>检查账户能否使用通道的某项功能</translation>
    </message>
    <message>
        <source>Counts devices by category</source>
        <translation>按类别统计设备数量</translation>
    </message>
    <message>
        <source>PTZ</source>
        <translation>云台</translation>
    </message>
    <message>
        <source>Turns on the wash function of a channel</source>
        <translation>开启通道的清洗功能</translation>
    </message>
    <message>
        <source>Turns on the wash function of several channels</source>
        <translation>批量开启通道的清洗功能</translation>
    </message>
    <message>
        <source>Stores the current camera position as the home position</source>
        <translation>将摄像机的当前位置设为守望位</translation>
    </message>
    <message>
        <source>Moves the camera to its home position</source>
        <translation>将摄像机转到守望位</translation>
    </message>
    <message>
        <source>Analysis tasks</source>
        <translation>分析任务</translation>
    </message>
    <message>
        <source>Marks the file uploads of analysis tasks as failed</source>
        <translation>将分析任务的文件上传标记为失败</translation>
    </message>
    <message>
        <source>Parking</source>
        <translation>停车场</translation>
    </message>
    <message>
        <source>Lists parking lots with their positions and points</source>
        <translation>列出停车场及其位置和点位</translation>
    </message>
    <message>
        <source>Lists parking lots with their spaces and channels</source>
        <translation>列出停车场及其车位和通道</translation>
    </message>
    <message>
        <source>Lists the organisations of the parking lots</source>
        <translation>列出停车场的组织</translation>
    </message>
    <message>
        <source>Corrects the plate number of a vehicle capture record</source>
        <translation>修正车辆抓拍记录的车牌号</translation>
    </message>
    <message>
        <source>Access-control persons and rules</source>
        <translation>门禁人员与规则</translation>
    </message>
    <message>
        <source>Reads one page of the authorised persons</source>
        <translation>分页读取已授权的人员</translation>
    </message>
    <message>
        <source>Lists the persons managed on a device</source>
        <translation>列出设备上的管理人员</translation>
    </message>
    <message>
        <source>Replaces the persons managed on a device</source>
        <translation>替换设备上的管理人员</translation>
    </message>
    <message>
        <source>Lists the rules of an access point</source>
        <translation>列出门禁点的规则</translation>
    </message>
    <message>
        <source>Resets the anti-passback time of a person</source>
        <translation>重置人员的反潜回时间</translation>
    </message>
    <message>
        <source>Cards, intercom and alarm hosts</source>
        <translation>卡片、对讲与报警主机</translation>
    </message>
    <message>
        <source>Reads the card configuration</source>
        <translation>读取卡片配置</translation>
    </message>
    <message>
        <source>Writes the card configuration</source>
        <translation>写入卡片配置</translation>
    </message>
    <message>
        <source>Reads one page of the devices where issuing the card configuration failed</source>
        <translation>分页读取卡片配置下发失败的设备</translation>
    </message>
    <message>
        <source>Reissues the card configuration to the failed devices</source>
        <translation>向下发失败的设备重新下发卡片配置</translation>
    </message>
    <message>
        <source>Deletes contacts of an outdoor station</source>
        <translation>删除门口机的联系人</translation>
    </message>
    <message>
        <source>Requests a snapshot of an alarm host&apos;s zone</source>
        <translation>请求报警主机防区的抓图</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>运维</translation>
    </message>
    <message>
        <source>Lists the alert types</source>
        <translation>列出告警类型</translation>
    </message>
    <message>
        <source>Reads the maintenance view of a channel</source>
        <translation>读取通道的运维信息</translation>
    </message>
    <message>
        <source>Reads the maintenance view of a device</source>
        <translation>读取设备的运维信息</translation>
    </message>
</context>
</TS>
