package orvane.str.diskarray;

public class ENCDownloadOption {
    public int auto_download_mode;
}
