<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh" sourcelanguage="en">
<context>
    <name>MainWindow</name>
    <message>
        <source>As of %1</source>
        <translation>更新于 %1</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>已保存</translation>
    </message>
    <message>
        <source>Example client</source>
        <translation>示例客户端</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Token</source>
        <translation>令牌</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>Parking lot</source>
        <translation>停车场</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>空闲</translation>
    </message>
    <message>
        <source>Spaces</source>
        <translation>车位</translation>
    </message>
    <message>
        <source>Synchronise time every (hours)</source>
        <translation>校时间隔（小时）</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Search alarm plans</source>
        <translation>搜索报警预案</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>上一页</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一页</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>第 %1 页，共 %2 页</translation>
    </message>
    <message>
        <source>You are not signed in.</source>
        <translation>您尚未登录。</translation>
    </message>
    <message>
        <source>This server is not trusted. Nothing was sent.</source>
        <translation>此服务器不受信任。未发送任何内容。</translation>
    </message>
    <message>
        <source>The reply is too large.</source>
        <translation>响应过大。</translation>
    </message>
    <message>
        <source>The reply is invalid. %1</source>
        <translation>响应无效。%1</translation>
    </message>
    <message>
        <source>The server refused this: %1 (code %2)</source>
        <translation>服务器拒绝了此操作：%1（代码 %2）</translation>
    </message>
    <message>
        <source>%1 (HTTP status %2)</source>
        <translation>%1（HTTP 状态 %2）</translation>
    </message>
    <message>
        <source>%1. Check whether it was saved before you retry.</source>
        <translation>%1。重试前请先确认是否已保存。</translation>
    </message>
</context>
</TS>
