package orvane.str.diskarray;

public class PairLUInfo {
    public int lun;
    public int capacity;
    public int pool_usedcapa_h;
    public int pool_usedcapa_l;
    public int pool_usedrate;
    public int mirror_count;
    public MirrorLUInfo[] m_info;
}
