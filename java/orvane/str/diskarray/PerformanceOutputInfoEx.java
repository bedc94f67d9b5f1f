package orvane.str.diskarray;

public class PerformanceOutputInfoEx {
    public byte[] ctl = new byte[2];
    public PerformanceAll preinfo0;
    public PerformanceAll afterinfo0;
    public PerformanceAll preinfo1;
    public PerformanceAll afterinfo1;
    public PerformanceOutputSpecifyInfo[] specifyinfo;
    public String filename;
    public int count;
    public int mode;
    public int file_fmt_mode;
}
