package orvane.str.diskarray;

/** Lacks auto_download_mode, the last field whose failure drops the object. */
public class ENCDownloadOption {
    public int auto_download_mode_absent;
}
